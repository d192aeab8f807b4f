-- The display goes dark and comes back: the panel closes, the pulse rests, the lock is armed, and what changed in
-- the dark shows; once each time, on every system.
local L = require("lock")
local pulsing = "<Pendix> Pulsing!"

local function sleep(phone) phone:display(false); phone:settle() end
local function wake(phone) phone:display(true); phone:wait(0.2) end

for _, ios in ipairs{ "7.0", "7.1", "8.0", "8.1", "8.3" } do
  local what = ios .. ": "
  local options = { device = "iPhone 5s", ios = ios }

  local phone = L.boot({ glow = true }, options)
  local timers = phone:counters().timers
  expect_eq(L.logged(phone, pulsing), 1, what .. "badges at launch pulse")
  for i = 1, 3 do
    L.open(phone)
    phone:display(false)
    expect_eq(L.logged(phone, "dismissing"), i, what .. "the dark closes the panel")
    phone:settle()
    phone:wait(0.2)
    expect(not L.is_open(phone), what .. "it is closed")
    expect_eq(L.glow(phone), nil, what .. "nothing glows in the dark")
    expect_eq(phone:indicator().alpha, 1, what .. "the indicator is back at full strength")
    expect_eq(phone:counters().timers, timers - 1, what .. "and no pulse runs")
    wake(phone)
    expect_eq(L.logged(phone, pulsing), 1 + i, what .. "waking starts one pulse")
    expect_eq(phone:counters().timers, timers, what .. "with one timer")
    expect(L.glow(phone), what .. "that glows")
    phone:unlock()
    phone:settle()
  end
  -- A pulse whose setting is gone ends too; without badges none starts.
  phone:set("glow", false)
  sleep(phone)
  phone:wait(0.2)
  expect_eq({ L.glow(phone), phone:counters().timers }, { nil, timers - 1 }, what .. "no setting, no pulse")
  wake(phone)
  expect_eq(L.glow(phone), nil, what .. "nor when it wakes")
  phone:set("glow", true)
  sleep(phone)
  for _, id in ipairs(L.ids) do phone:badge(id, 0) end
  wake(phone)
  expect_eq(L.glow(phone), nil, what .. "no badges, no pulse")
  phone:unlock()
  L.no_harm(phone)

  -- Badges and settings that change in the dark.
  phone = L.boot({ hide_t = true }, options)
  for _, id in ipairs(L.ids) do phone:badge(id, 0) end
  expect_eq(phone:indicator().visible, false, what .. "no badge, no indicator")
  sleep(phone)
  phone:badge(L.ids[2], 4)
  phone:wait(2)
  expect_eq(phone:indicator().visible, false, what .. "in the dark nothing moves")
  phone:display(true)
  expect_eq(phone:indicator().visible, true, what .. "waking shows it")
  sleep(phone)
  phone:badge(L.ids[2], 0)
  phone:display(true)
  expect_eq(phone:indicator().visible, false, what .. "and hides it")
  sleep(phone)
  phone:set("hide_t", false)
  phone:wait(2)
  expect_eq(phone:indicator().visible, false, what .. "the poll rests in the dark")
  phone:display(true)
  phone:wait(1.1)
  expect_eq(phone:indicator().visible, true, what .. "and goes on with the light")
  L.no_harm(phone)

  -- The lock, armed by the dark where it should be.
  for where, armed in pairs{ everyoff = true, lockscreen = false } do
    phone = L.boot_locked({ where = where }, options)
    L.open(phone)
    expect_eq(L.shown(phone), "list", what .. where .. ": not armed yet")
    sleep(phone)
    wake(phone)
    phone:unlock()
    phone:settle()
    L.open(phone)
    expect_eq(L.shown(phone), armed and "keypad" or "list", what .. where .. " after the dark")
    if armed then
      L.enter(phone, "1234")
      L.close(phone)
      L.open(phone)
      expect_eq(L.shown(phone), "list", what .. "until it is unlocked")
    end
    L.no_harm(phone)
  end
end
