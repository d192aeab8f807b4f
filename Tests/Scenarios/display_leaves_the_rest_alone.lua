-- A display that goes off and on changes nothing of an indicator that does not follow badges: switched off, hidden, or
-- standing for the running applications.
local L = require("lock")

for what, settings in pairs{
  ["switched off"] = { enable = false }, hidden = { hide = true }, ["for running applications"] = { badge = true },
} do
  settings.glow, settings.hide_t, settings.tint = true, true, "green"
  for _, ios in ipairs{ "7.1", "8.1" } do
    local phone = L.boot(settings, { device = "iPhone 5s", ios = ios })
    phone:wait(2)
    local visible = phone:indicator().visible
    for _ = 1, 2 do
      phone:display(false)
      phone:wait(1)
      phone:display(true)
      phone:wait(1)
      expect_eq(phone:indicator().visible, visible, what .. ", " .. ios .. ": shows as before")
      expect_eq(L.glow(phone), nil, what .. ", " .. ios .. ": does not glow")
      phone:unlock()
      phone:settle()
    end
    L.no_harm(phone)
  end
end
