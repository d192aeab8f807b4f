-- When the indicator pulses, in which colour, and what ends it.
local H = require("home")
local apps = H.apps(H.mail, H.phone)
local function phone_with(settings) return boot{ settings = settings, apps = apps } end

for _, case in ipairs{
  { {}, false }, { { enable = true }, false }, { { glow = true }, false }, { { enable = true, glow = true }, true },
  { { enable = true, glow = true, hide = true }, false }, { { enable = true, glow = true, badge = true }, false },
  { { enable = true, glow = true, hide_t = true }, true },
} do
  local phone = phone_with(case[1])
  local timers = phone:counters().timers
  phone:badge(H.mail, 1)
  expect_eq(H.logged(phone, "<Pendix> Pulsing!"), case[2] and 1 or 0, "a pulse starts only where the settings want one")
  expect_eq(phone:counters().timers - timers, case[2] and 1 or 0, "with one timer")
  expect_eq(H.pulses(phone), case[2], "and is seen")
  phone:badge(H.phone, 1)
  expect_eq(phone:counters().timers - timers, case[2] and 1 or 0, "a second badge starts no second pulse")
  phone:badge(H.mail, 0)
  phone:badge(H.phone, 0)
  phone:wait(0.1)
  expect_eq(phone:counters().timers, timers, "the last badge gone, the timer ends with its next step")
  expect_eq(H.glow(phone), nil, "and the glow")
  expect(not H.pulses(phone), "and the fading")
  H.no_harm(phone)
end

for name, rgba in pairs{ black = "#000000ff", white = "#ffffffff", gray = "#808080ff", red = "#ff0000ff",
  green = "#00ff00ff", blue = "#0000ffff", cyan = "#00ffffff", magenta = "#ff00ffff", orange = "#ff8000ff",
  purple = "#800080ff", brown = "#996633ff", yellow = "#ffff00ff", clear = "#00000000", Red = "#ff0000ff",
  turquoise = "#ff0000ff" } do
  local phone = phone_with{ enable = true, glow = true, tint = name }
  phone:badge(H.mail, 1)
  expect_eq(phone:indicator().shadow_color, rgba, "tint " .. name)
  expect_near(phone:indicator().shadow_radius, 13, 0.001, "the glow's radius")
end
local phone = phone_with{ enable = true, glow = true }
phone:badge(H.mail, 1)
expect_eq(H.glow(phone), "#ff0000ff", "a file without the colour: red")

phone = phone_with{ enable = true, glow = true, tint = "green" }
phone:badge(H.mail, 1)
phone:set("badge", true)
phone:wait(1.1)
expect_eq(H.glow(phone), nil, "running mode ends the pulse at the next poll")
expect_eq(phone:indicator().alpha, 1, "at full strength")
phone:set("badge", false)
phone:wait(1.1)
expect(H.pulses(phone), "leaving it goes on, for the badge still waits")
expect_eq(H.glow(phone), "#00ff00ff", "in its colour")
phone:set("glow", false)
phone:wait(2)
expect(H.pulses(phone), "turning the pulse off waits")
phone:badge(H.mail, 3)
phone:wait(0.1)
expect(not H.pulses(phone), "for the next badge")
expect_eq(H.glow(phone), nil, "which takes the glow away too")
H.no_harm(phone)

-- What the poll watches ends a pulse and starts it again while badges wait, with one timer and one line of the log each
-- time; where no badge waits, or `glow` is off, nothing starts.
for _, case in ipairs{ { what = "a badge waits", pulses = true }, { what = "without glow", glow = false },
  { what = "with hide_t", hide_t = true, pulses = true }, { what = "no badge waits", badge = 0 },
  { what = "the only badge is of a hidden application", hidden = true } } do
  local glowing = { enable = true, glow = case.glow ~= false, hide_t = case.hide_t, tint = "blue",
    [H.mail] = { hide_perapp = case.hidden or false } }
  local phone = boot{ settings = glowing, apps = { { id = H.mail, name = "Mail", badge = case.badge or 2 } } }
  local base, started = phone:counters().timers - (case.pulses and 1 or 0), case.pulses and 1 or 0
  local logged = #phone:log()
  for _, key in ipairs{ "enable", "hide", "badge" } do
    local away = key ~= "enable"
    local what = case.what .. ", " .. key
    phone:set(key, away)
    phone:wait(1.1)
    expect_eq(H.glow(phone), nil, what .. ": ends the glow")
    expect_eq(phone:counters().timers, base, what .. ": and its timer")
    local alpha = phone:indicator().alpha
    expect(alpha == nil or alpha == 1, what .. ": at full strength")
    phone:set(key, not away)
    phone:wait(1)
    started = started + (case.pulses and 1 or 0)
    expect_eq(H.logged(phone, "<Pendix> Pulsing!"), started, what .. ": taken back, a pulse starts where badges wait")
    expect_eq(H.glow(phone), case.pulses and "#0000ffff" or nil, what .. ": in its colour")
    expect_eq(phone:counters().timers, base + (case.pulses and 1 or 0), what .. ": with one timer")
    expect_eq(H.pulses(phone), case.pulses or false, what .. ": and is seen")
  end
  if case.pulses then expect_eq(#phone:log(), logged + 3, case.what .. ": nothing else is logged") end
  H.no_harm(phone)
end
