-- A finger that holds an answer or a face's button while the panel under it goes: when it is lifted, nothing happens to
-- the panel that stands there by then, and nothing that a lock hides.
local L = require("lock")

local function seen(phone, tag)
  for _, view in ipairs(phone:all{ window = "overlay", tag = tag, class = "promptButton" }) do
    if not view.hidden then return view end
  end
end

local function hold(phone, view, finger)
  phone:down(view, finger or 1)
  phone:wait(0.05)
end

-- What was done to applications.
local function done(phone)
  return #phone:events("badge_set") + #phone:events("quit") + #phone:events("launch")
end

local function no_harm(phone, what)
  expect_eq({ #phone:events("crash"), #phone:events("unrecognized") }, { 0, 0 }, what)
end

local ways = {
  activator = function(phone) phone:activator() end,
  home = function(phone) phone:home() end,
  banner = function(phone) phone:banner("hello") end,
}

-- Held across a closing, an answer means nothing to the next panel, which is locked again.
for _, case in ipairs{
  { "activator", "ok", 0, false }, { "activator", "ok", 60, true }, { "home", "ok", 0.05, true }, { "banner", "ok", 0.05, false },
  { "home", "cancel", 0, false }, { "banner", "cancel", 60, true },
} do
  local way, answer, between, running = table.unpack(case)
  local what = table.concat({ way, answer, between, running and "running" or "badges" }, ", ")
  local phone = L.boot_locked{ badge = running }
  L.open(phone)
  L.enter(phone, "1234")
  L.long_press(phone, L.item(phone, 1))
  hold(phone, seen(phone, L.tags[answer]))
  ways[way](phone)
  phone:wait(between)
  phone:activator()
  phone:wait(1)
  expect_eq(L.shown(phone), "keypad", what .. ": locked again")
  local before, height = done(phone), L.panel(phone).h
  phone:up()
  phone:settle()
  expect_eq(done(phone), before, what .. ": nothing behind the lock is cleared or quit")
  expect_eq({ L.shown(phone), L.panel(phone).h }, { "keypad", height }, what .. ": the panel stays as it is")
  no_harm(phone, what)
end

-- Taken back with the other finger, the question is answered by Cancel alone.
for _, rest in ipairs{ 0.02, 0.1, 2 } do
  local phone = L.boot{}
  L.open(phone)
  L.long_press(phone, L.item(phone, 1))
  hold(phone, seen(phone, L.tags.ok), 1)
  hold(phone, seen(phone, L.tags.cancel), 2)
  phone:up(2)
  phone:wait(rest)
  phone:up(1)
  phone:settle()
  expect_eq({ done(phone), L.shown(phone) }, { 0, "list" }, "taken back, then let go of OK after " .. rest)
  no_harm(phone, "two answers")
end

-- A face's button is that panel's alone.
for _, tag in ipairs{ 2, 3 } do
  local phone = L.boot_locked({ touchid = true }, { device = "iPhone 6" })
  L.open(phone)
  hold(phone, L.part(phone, "finger", tag))
  phone:home()
  phone:wait(1)
  phone:activator()
  phone:wait(1)
  phone:up()
  phone:settle()
  expect_eq(L.is_open(phone) and L.shown(phone), "finger", "a button of the face before: " .. tag)
end
