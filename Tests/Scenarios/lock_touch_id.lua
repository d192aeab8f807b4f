-- A finger unlocks only while the panel waits for one, the glyph and the title tell what the sensor says, and the
-- sensor gets its state back after every way of closing.
local L = require("lock")
local taken, given_back = "observe matching_on start", "observe matching_on start unobserve matching_off"

local function glyph(phone) return L.part(phone, "finger", 1) end
local function unlocked(phone) return L.logged(phone, "<Pendix> Pendix UI unlocked!") end
local function press(phone, face, tag)
  phone:tap(L.part(phone, face, tag))
  phone:settle()
end

-- What each event does while a finger is awaited.
local phone = L.boot_locked{ touchid = true }
L.open(phone)
local waiting = L.title(phone, "finger")
expect_eq({ glyph(phone).class, glyph(phone).w, glyph(phone).state }, { "PKGlyphView", 65, 0 }, "the glyph waits")
for _, step in ipairs{
  -- event, the glyph's state, the title, vibrations
  { 1, 1, waiting, 0 }, { 2, 1, waiting, 0 }, { 4, 1, waiting, 0 }, { 11, 1, waiting, 0 }, { 1000, 1, waiting, 0 },
  { 0, 0, waiting, 0 }, { 1, 1, waiting, 0 }, { 9, 0, waiting, 1 }, { 1, 1, waiting, 1 }, { 10, 0, waiting, 2 },
  { "down", 1, waiting, 2 }, { "no_match", 0, waiting, 3 }, { 1, 1, waiting, 3 }, { 5, 1, "Touch ID Failed", 3 },
  { 6, 1, "Touch ID Failed", 3 }, { 7, 1, "Touch ID Failed", 3 }, { 8, 1, "Touch ID Failed", 3 },
  { "failed", 1, "Touch ID Failed", 3 }, { "up", 0, "Touch ID Failed", 3 },
} do
  phone:finger(step[1])
  phone:settle()
  expect_eq({ glyph(phone).state, L.title(phone, "finger"), L.sounds(phone, L.vibration) },
    { step[2], step[3], step[4] }, "event " .. step[1])
  expect_eq(L.shown(phone), "finger", "event " .. step[1] .. " unlocks nothing")
end
phone:finger("match")
expect_eq({ glyph(phone).state, unlocked(phone) }, { 6, 0 }, "a match ticks the glyph first")
phone:finger(3)
phone:settle()
expect_eq({ L.shown(phone), unlocked(phone) }, { "list", 1 }, "and then unlocks, once")
expect_eq(L.sensor(phone), given_back, "the sensor is given back")
L.close(phone)
expect_eq(L.sensor(phone), given_back, "and not again when the list closes")

-- A finger counts only while it is awaited.
phone = L.boot_locked{ touchid = true, ask = true }
phone:finger(3)
L.open(phone)
phone:finger(3)
phone:settle()
expect_eq(L.shown(phone), "ask", "not before the ask face is passed")
phone:tap(L.part(phone, "ask", -2))
phone:finger(3)
phone:settle()
expect_eq(L.shown(phone), "finger", "nor on the way")
press(phone, "finger", 3)
phone:finger(3)
phone:settle()
expect_eq(L.shown(phone), "keypad", "nor on the keypad")
phone:tap(L.touch_id_button(phone))
phone:settle()
phone:finger(3)
phone:settle()
expect_eq(L.shown(phone), "list", "but back on the Touch ID face")

phone = L.boot_locked{ touchid = false }
L.open(phone)
phone:finger(3)
phone:settle()
expect_eq(L.shown(phone), "keypad", "with the setting off the keypad comes first and no finger counts")
phone:tap(L.touch_id_button(phone))
phone:settle()
expect_eq(L.shown(phone), "finger", "but its button leads to the Touch ID face")
phone:finger(3)
phone:settle()
expect_eq(L.shown(phone), "list", "where a finger unlocks")

-- Every way of closing gives the sensor back, from every face; afterwards a match opens nothing.
for name, close in pairs{
  outside = L.tap_outside, home = function(p) p:home() end, banner = function(p) p:banner("Hello") end,
  activator = function(p) p:activator() end, display = function(p) p:display(false) end,
  cancel = function(p)
    if L.shown(p) == "finger" then press(p, "finger", 2) elseif L.shown(p) == "keypad" then press(p, "keypad", -2)
    else L.tap_outside(p) end
  end,
} do
  for _, settings in ipairs{ { touchid = true }, { touchid = false }, { touchid = true, ask = true } } do
    phone = L.boot_locked(settings)
    L.open(phone)
    expect_eq(L.sensor(phone), taken, name .. ": the sensor is observed once")
    close(phone)
    expect_eq(L.sensor(phone), given_back, name .. ": and given back as the closing begins")
    phone:settle()
    expect(not L.is_open(phone), name .. " closes the panel")
    phone:finger(3)
    phone:settle()
    expect_eq(unlocked(phone), 0, name .. ": nothing was unlocked")
    L.no_harm(phone)
  end
end

-- Closed while the glyph ticks: unlocked for the next time, and nothing else.
phone = L.boot_locked{ touchid = true, where = "every" }
L.open(phone)
phone:finger(3)
phone:activator()
phone:settle()
phone:set("where", "everyoff")
L.open(phone)
expect_eq({ L.shown(phone), unlocked(phone) }, { "list", 1 }, "the match counts though nothing was left to show")

-- Closed on the way from the ask face and opened again: the new ask face is not passed.
phone = L.boot_locked{ touchid = true, ask = true }
L.open(phone)
phone:tap(L.part(phone, "ask", -2))
phone:wait(0.1)
phone:activator()
phone:wait(0.1)
phone:activator()
phone:settle()
phone:finger(3)
phone:settle()
expect_eq({ L.shown(phone), unlocked(phone) }, { "ask", 0 }, "a finger does not count behind the ask face")

-- The keypad chosen while the question still leaves: it stays chosen, and a finger no longer counts.
phone = L.boot_locked{ touchid = true, ask = true }
L.open(phone)
phone:tap(L.part(phone, "ask", -2))
phone:wait(0.35)
expect(L.face_view(phone, "ask") ~= nil, "the question is on its way")
local passcode = L.part(phone, "finger", 3).screen
phone:tap{ passcode.x + passcode.w / 2, passcode.y + 3 } -- what the question has uncovered of it
phone:settle()
phone:finger(3)
phone:settle()
expect_eq({ L.shown(phone), unlocked(phone) }, { "keypad", 0 }, "the keypad was chosen")
expect_eq(L.panel(phone).h, L.face_view(phone, "keypad").h, "and is whole")
phone:tap(L.touch_id_button(phone))
phone:settle()
phone:finger(3)
phone:settle()
expect_eq(L.shown(phone), "list", "until the finger is chosen again")

-- A button that is held as the panel closes does nothing: the panel goes on closing, and the next one, whose question
-- has not been passed, is left alone.
for _, case in ipairs{
  { "ask", { touchid = true, ask = true }, function(p) return L.part(p, "ask", -2) end },
  { "finger", { touchid = true }, function(p) return L.part(p, "finger", 3) end },
  { "keypad", { touchid = false }, function(p) return L.touch_id_button(p) end },
  { "keypad", { touchid = false }, function(p) return L.button(p) end },
} do
  local face, settings, button = table.unpack(case)
  for _, again in ipairs{ false, true } do
    phone = L.boot_locked(settings)
    L.open(phone)
    expect_eq(L.shown(phone), face, "the face with the button")
    phone:down(button(phone))
    phone:activator()
    phone:wait(0.1)
    if again then
      phone:set("ask", true)
      phone:activator()
    end
    phone:up()
    if again then
      phone:settle()
      phone:finger(3)
      phone:settle()
      expect_eq({ L.shown(phone), unlocked(phone) }, { "ask", 0 }, face .. ": the next panel still asks")
      phone:tap(L.part(phone, "ask", -2))
      phone:settle()
      expect_eq(L.shown(phone), settings.touchid and "finger" or "keypad", face .. ": before its own face")
    else
      expect_eq({ L.panel(phone).w, L.panel(phone).h }, { 1, 1 }, face .. ": it goes on closing")
      phone:settle()
      expect(not L.is_open(phone), face .. ": and is gone")
    end
    L.no_harm(phone)
  end
end

-- The glyph draws at the panel's pace.
for fast, seconds in pairs{ [false] = 0.5, [true] = 0.125 } do
  phone = L.boot_locked{ touchid = true, fast = fast }
  L.open(phone)
  phone:finger(1)
  expect_near(phone:settle(), seconds, 1 / 60, "the ridges fill in that time")
end

-- A sensor on a system without the glyph.
phone = L.boot_locked({ touchid = true }, { device = "iPhone 5s", ios = "7.1" })
L.open(phone)
expect_eq({ L.shown(phone), glyph(phone) == nil }, { "finger", true }, "the face listens without a glyph")
for _, event in ipairs{ 1, 0, 5, 9 } do phone:finger(event) end
expect_eq(L.title(phone, "finger"), "Touch ID Failed", "and tells of a failure")
phone:finger(3)
phone:settle()
expect_eq({ L.shown(phone), unlocked(phone) }, { "list", 1 }, "a match unlocks at once")
L.no_harm(phone)

-- A choice that comes when the panel is unlocked already changes nothing: the list stands in a panel of its own height.
for _, choice in ipairs{ { finger = 3, method = "usePasscode" }, { code = "1234", method = "useTochID" } } do
  phone = L.boot_locked{ touchid = true }
  L.open(phone)
  if choice.code then
    phone:tap(L.part(phone, "finger", 3))
    phone:settle()
    L.type(phone, choice.code)
    phone:wait(0.25)
  else
    phone:finger(choice.finger)
    phone:wait(0.6)
  end
  expect_eq(unlocked(phone), 1, choice.method .. ": unlocked")
  phone:call(choice.method) -- a finger was on the button
  phone:settle()
  expect_eq(L.shown(phone), "list", choice.method .. ": the list shows")
  expect_eq(L.panel(phone).h, 110, choice.method .. ": and the panel is as high as that")
end
