-- What is entered counts for the panel into which it is entered, and only until something arms the lock again: a code
-- or a finger that is still being judged when the display goes off, or when another panel opens, opens nothing.
local L = dofile("lib_lock.lua")

local function face_of(how) return how == "finger" and "finger" or "keypad" end

-- To the face that takes it, and there the code without its last digit.
local function begin(phone, how)
  if L.shown(phone) == "ask" then
    phone:tap(L.part(phone, "ask", -2))
    phone:settle()
  end
  if L.shown(phone) ~= face_of(how) then
    phone:tap(L.part(phone, "finger", 3))
    phone:settle()
  end
  if how == "code" then L.enter(phone, "123") end
end
local function finish(phone, how)
  if how == "code" then L.type(phone, "4") else phone:finger(3) end
end
local function wake(phone)
  phone:display(true)
  phone:unlock()
  phone:settle()
end

-- Each leaves the phone with the panel open that what was entered must not open.
local moments = {
  dark = { where = "everyoff", act = function(phone)
    phone:display(false)
    phone:wait(1)
    wake(phone)
    phone:activator()
  end },
  ["dark by the button"] = { where = "everyoff", act = function(phone)
    phone:lock()
    phone:lock()
    phone:unlock()
    phone:activator()
  end },
  ["opened again at once"] = { where = "every", act = function(phone)
    phone:activator()
    phone:activator()
  end },
  ["opened again a little later"] = { where = "every", act = function(phone)
    phone:activator()
    phone:wait(0.05)
    phone:activator()
  end },
  ["behind the question"] = { where = "every", ask = true, act = function(phone)
    phone:home()
    phone:wait(0.05)
    phone:activator()
  end },
}

local function armed(phone, settings)
  phone:set(settings)
  phone:display(false)
  wake(phone)
  L.open(phone)
  expect(L.shown(phone) ~= "list", "armed")
end

each_profile(function(device, ios)
  local phone = L.boot_locked({ touchid = true }, { device = device, ios = ios })
  for _, fast in ipairs{ false, true } do
    for name, moment in pairs(moments) do
      for _, how in ipairs(phone:settings().hasTouchID == "1" and { "code", "finger" } or { "code" }) do
        local what = device .. " " .. ios .. (fast and " fast, " or ", ") .. how .. " " .. name .. ": "
        armed(phone, { fast = fast, where = moment.where, ask = moment.ask or false })
        begin(phone, how)
        finish(phone, how)
        -- A system without the glyph lets the finger in at once.
        local at_once = how == "finger" and L.part(phone, "finger", 1) == nil
        local before = L.logged(phone, "<Pendix> Pendix UI unlocked!")
        moment.act(phone)
        L.nothing_shows(phone, what)
        phone:settle()
        phone:wait(0.6) -- as long as a finger takes at most
        expect(L.shown(phone) ~= "list", what .. "the panel stays locked")
        L.nothing_shows(phone, what)
        expect_eq(L.logged(phone, "<Pendix> Pendix UI unlocked!"), before, what .. "nothing was unlocked late")
        expect(not at_once or before > 0, what .. "at once where there is no glyph")
        -- And what is entered now counts.
        begin(phone, how)
        finish(phone, how)
        phone:settle()
        expect_eq(L.shown(phone), "list", what .. "it unlocks as ever")
        L.close(phone)
      end
    end
  end
  L.no_harm(phone)
end, function(device) return device == "iPhone 5s" end) -- the one with a sensor that runs them all

-- A panel that merely closes takes back nothing.
for _, how in ipairs{ "code", "finger" } do
  local phone = L.boot_locked{ touchid = true, where = "every" }
  L.open(phone)
  begin(phone, how)
  finish(phone, how)
  phone:activator()
  phone:settle()
  phone:set("where", "everyoff")
  L.open(phone)
  expect_eq({ L.shown(phone), L.logged(phone, "<Pendix> Pendix UI unlocked!") }, { "list", 1 },
    how .. ": it counts though nothing was left to show")
end

-- A key that is still held as the panel closes enters nothing: neither for the dark nor for the next panel.
for name, act in pairs{
  dark = function(phone)
    phone:lock()
    phone:lock()
  end,
  closing = function(phone) phone:activator() end,
  ["another panel"] = function(phone)
    phone:activator()
    phone:activator()
  end,
} do
  local phone = L.boot_locked({ where = "every" })
  L.open(phone)
  phone:set("where", "everyoff")
  L.enter(phone, "123")
  phone:down(L.key(phone, 4))
  phone:wait(0.05)
  act(phone)
  phone:wait(0.1)
  phone:up()
  phone:settle()
  phone:unlock()
  phone:settle()
  if not L.is_open(phone) then L.open(phone) end
  expect_eq({ L.shown(phone), (L.entered(phone)) }, { "keypad", "" }, name .. ": the digit is lost")
  L.no_harm(phone)
end
