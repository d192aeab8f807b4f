-- Hours of pulsing, polling and changing badges leave no object behind and cost the same reads every hour.
local H = require("home")
local phone = boot{ settings = { enable = true, glow = true, hide_t = true, tint = "cyan" },
  apps = { { id = H.mail, name = "Mail", badge = 3 }, { id = H.phone, name = "Phone", folder = "Social" } } }
local function an_hour()
  phone:reset_counters()
  for n = 1, 20 do
    phone:badge(H.mail, n % 5)
    phone:badge(H.phone, n % 3)
    phone:wait(180)
  end
  phone:badge(H.mail, 3)
  phone:badge(H.phone, 0)
  phone:wait(1)
  local counters = phone:counters()
  return counters.live, counters.timers, counters.settings_reads
end
an_hour()
local live, timers, reads = an_hour()
for hour = 3, 5 do
  local l, t, r = an_hour()
  expect_eq(l, live, "live objects after hour " .. hour)
  expect_eq(t, timers, "timers after hour " .. hour)
  expect_eq(r, reads, "settings reads in hour " .. hour)
end
H.no_harm(phone)
