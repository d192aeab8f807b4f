-- A day of virtual time with a pulsing indicator. Prints the live objects at each hour; nothing may grow.
local phone = boot{ settings = { enable = true, glow = true, hide_t = true, tint = "cyan" },
  apps = { { id = "com.apple.mobilemail", name = "Mail", badge = 3 }, { id = "com.apple.mobilephone", name = "Phone" } } }
local function total()
  local sum = 0
  for _, count in pairs(phone:counters().live) do sum = sum + count end
  return sum
end
phone:wait(60)
local first, before = phone:counters().live, total()
phone:reset_counters()
for hour = 1, 24 do
  phone:wait(3600)
  local now = total()
  print(string.format("hour %2d  live objects %d (%+d)  settings reads %d", hour, now, now - before,
    phone:counters().settings_reads))
  expect_eq(now, before, "live objects in hour " .. hour)
end
expect_eq(phone:counters().live, first, "live objects by class")
expect_eq(phone:counters().settings_reads, 4 * 86400, "four reads a second")
expect(phone:indicator().shadow_opacity == 1, "it pulses still")
