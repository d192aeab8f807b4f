-- Which badges count: those on the home screen and those inside folders, but not those of hidden applications.
local H = require("home")
for _, ios in ipairs{ "7.1", "8.1" } do
  local what = ios .. ": "
  local folded = { { id = H.mail, name = "Mail" }, { id = H.phone, name = "Phone", folder = "Social" },
    { id = H.clock, name = "Clock", folder = "Social" } }
  local phone = boot{ device = "iPhone 5s", ios = ios, settings = { enable = true }, apps = folded }
  phone:set("hide_t", true)
  phone:wait(1)
  local function shown(wanted, message) expect_eq(phone:indicator().visible, wanted, what .. message) end
  shown(false, "no badge")
  expect_eq(phone:call("checkBadges"), false, what .. "checkBadges agrees")
  phone:badge(H.phone, 2)
  shown(true, "a badge in a folder shows the indicator")
  phone:badge(H.phone, 0)
  shown(true, "and stays listed when it is cleared there")

  phone:respring()
  phone:wait(1)
  phone:badge(H.mail, 5)
  shown(true, "a badge of its own")
  phone:set(H.mail, { hide_perapp = true })
  expect_eq(phone:call("checkBadges"), false, what .. "hiding the application takes it off the list at once")
  phone:badge(H.mail, 6)
  shown(false, "a hidden application's badge does not count")
  for _, wrong in ipairs{ "yes", { hide_perapp = { a = 1 } }, { other = true }, { hide_perapp = false } } do
    phone:set(H.mail, wrong)
    phone:badge(H.mail, 0)
    phone:badge(H.mail, 7)
    shown(true, "a setting of another kind hides nothing")
  end
  phone:set("badge", true)
  expect_eq(phone:call("checkBadges"), false, what .. "in running mode no badge counts")
  H.no_harm(phone)
end
