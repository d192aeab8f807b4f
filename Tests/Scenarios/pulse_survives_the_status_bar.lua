-- A status bar that lays itself out anew drops the glow, which comes back in the colour of the setting; a
-- pulse stopped and started within a step runs on two timers.
local H = require("home")
local phone = boot{ settings = { enable = true, glow = true, tint = "green" }, apps = H.apps(H.mail) }
phone:badge(H.mail, 1)
expect_eq(H.glow(phone), "#00ff00ff", "the pulse glows in its colour")
phone:set("tint", "magenta")
phone:wait(1)
expect_eq(H.glow(phone), "#00ff00ff", "a new colour waits")
phone:restyle()
expect_eq(H.glow(phone), nil, "the restyle drops the glow")
phone:wait(0.08)
expect_eq(H.glow(phone), "#ff00ffff", "and the next step brings it back, in the new colour")
expect(H.pulses(phone), "the pulse goes on")

local timers = phone:counters().timers - 1
phone:badge(H.mail, 0)
phone:badge(H.mail, 1)
expect_eq(phone:counters().timers, timers + 2, "stopped and started within one step: two timers")
phone:wait(1)
expect_eq(phone:counters().timers, timers + 2, "both of which run on")
phone:badge(H.mail, 0)
phone:wait(0.1)
expect_eq(phone:counters().timers, timers, "until the pulse ends for good")
H.no_harm(phone)
