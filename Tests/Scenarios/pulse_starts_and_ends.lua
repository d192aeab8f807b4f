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
expect(not H.pulses(phone), "leaving it starts none")
phone:badge(H.mail, 2)
expect(H.pulses(phone), "the next badge does")
phone:set("glow", false)
phone:wait(2)
expect(H.pulses(phone), "turning the pulse off waits")
phone:badge(H.mail, 3)
phone:wait(0.1)
expect(not H.pulses(phone), "for the next badge")
expect_eq(H.glow(phone), nil, "which takes the glow away too")
H.no_harm(phone)
