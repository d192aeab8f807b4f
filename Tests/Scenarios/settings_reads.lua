-- The poll reads the file four times a second while nothing changes, and at most twelve times when a watched key
-- did; it writes nothing.
local H = require("home")
local function reads(phone, seconds)
  phone:reset_counters()
  phone:wait(seconds)
  return phone:counters().settings_reads
end
for _, settings in ipairs{ {}, { enable = true }, { enable = true, hide_t = true, glow = true }, { badge = true } } do
  local phone = boot{ settings = settings, apps = H.apps(H.mail, H.phone) }
  for _ = 1, 3 do expect_eq(reads(phone, 1), 4, "a steady tick reads four times") end
  expect_eq(reads(phone, 60), 240, "a steady minute")
end
local phone = boot{ settings = { enable = true, glow = true, tint = "green" },
  apps = { { id = H.mail, name = "Mail", badge = 3 }, { id = H.phone, name = "Phone", badge = 1 } } }
for _, change in ipairs{ { hide = true }, { hide = false }, { hide_t = true }, { enable = false },
  { enable = true, hide_t = false }, { badge = true }, { badge = false, hide_t = true } } do
  phone:set(change)
  local n = reads(phone, 1)
  expect(n >= 4 and n <= 12, "a changed key costs at most twelve reads, it cost " .. n)
end
expect_eq(phone:counters().settings_writes, 0, "the home screen writes nothing after its launch")
