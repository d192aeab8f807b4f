-- Badges that are there when the home screen starts are seen, and seen again after it starts anew.
local H = require("home")
local phone = boot{ settings = { enable = true, glow = true, tint = "blue" },
  apps = { { id = H.mail, name = "Mail", badge = 3 }, { id = H.phone, name = "Phone" } } }
expect_eq(phone:call("checkBadges"), true, "the badge is listed before the boot returns")
expect_eq(H.glow(phone), "#0000ffff", "and the indicator glows")
expect_eq(H.logged(phone, "<Pendix> Pulsing!"), 1, "from one start")
phone:wait(3)
phone:respring()
expect_eq(H.logged(phone, "<Pendix> Loaded!"), 2, "the log goes on")
expect_eq(phone:call("checkBadges"), true, "the new home screen draws its badges and the list fills again")
expect_eq(H.glow(phone), "#0000ffff", "and it pulses again")
expect(H.pulses(phone), "visibly")
H.no_harm(phone)
