-- The panel over the lock screen: it shows, asks for its code while the device is locked, and opens what was picked
-- after the unlock, but not when it went dark in between.
local L = require("lock")

local function launches(phone)
  local ids = {}
  for i, e in ipairs(phone:events("launch")) do ids[i] = e.id end
  return ids
end
local function event(phone) phone:activator(); phone:settle() end
local function to_lock_screen(phone)
  phone:lock()
  phone:settle()
  phone:display(true)
  phone:wait(0.5)
end
local function unlock(phone) phone:unlock(); phone:settle() end
local function pick(phone, i)
  event(phone)
  phone:tap(L.item(phone, i))
  phone:settle()
end

for _, ios in ipairs{ "7.1", "8.0", "8.1" } do
  for _, passcode in ipairs{ false, true } do
    local what = ios .. (passcode and " with a device passcode: " or ": ")
    local phone = L.boot({}, { device = "iPhone 5s", ios = ios, passcode = passcode })

    to_lock_screen(phone)
    pick(phone, 2)
    expect(not L.is_open(phone), what .. "picking closes the panel")
    expect_eq(launches(phone), {}, what .. "nothing opens on the lock screen")
    unlock(phone)
    expect_eq(launches(phone), { L.ids[2] }, what .. "the application opens after the unlock")
    expect_eq(phone:foreground(), L.ids[2], what .. "and is in front")
    to_lock_screen(phone)
    unlock(phone)
    expect_eq(launches(phone), { L.ids[2] }, what .. "once")

    to_lock_screen(phone)
    pick(phone, 1)
    phone:display(false)
    phone:settle()
    phone:display(true)
    phone:wait(0.5)
    unlock(phone)
    expect_eq(launches(phone), { L.ids[2] }, what .. "not when it went dark in between")

    to_lock_screen(phone)
    event(phone)
    expect(L.is_open(phone), what .. "open over the lock screen")
    unlock(phone)
    expect(not L.is_open(phone), what .. "unlocking the device closes it")
    expect_eq(launches(phone), { L.ids[2] }, what .. "and opens nothing")
    L.no_harm(phone)

    -- Asked only while the device itself is locked.
    phone = L.boot_locked({ where = "lockscreen" }, { device = "iPhone 5s", ios = ios, passcode = passcode })
    to_lock_screen(phone)
    event(phone)
    expect_eq(L.shown(phone), passcode and "keypad" or "list", what .. "on the lock screen")
    if passcode then
      L.nothing_shows(phone, what)
      L.enter(phone, "1234")
      expect_eq(L.shown(phone), "list", what .. "the panel's own code opens it there")
      event(phone)
      event(phone)
      expect_eq(L.shown(phone), "keypad", what .. "each time anew")
    end
    unlock(phone)
    event(phone)
    expect_eq(L.shown(phone), "list", what .. "not on the home screen")
    L.no_harm(phone)
  end
end

local phone = L.boot_locked({ where = "lockscreen" }, { passcode_locked = true })
event(phone)
expect_eq(L.shown(phone), "keypad", "a device that starts locked")
