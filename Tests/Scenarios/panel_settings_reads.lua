-- Opening with N applications reads the settings file at most 32 + N times, from the tap to the end of the animation,
-- the poll and the follower included; and an open panel costs a steady number of reads.
local P = require("panel")
local every = { paging = true, ca = true, light = true, blur = true, back = true, close = true, fast = false,
  rech = true, position = "middle", amount = 3, hide_t = true, tint = "blue" }
local locked = { pass = true, password = "1234", where = "every", touchid = true, ask = true, paging = true }
for _, case in ipairs{ { {}, "8.1" }, { locked, "8.1" }, { {}, "7.1" }, { every, "8.1" }, { every, "7.1" }, { { badge = true }, "8.1" },
  { { badge = true, paging = true, ca = true }, "7.1" } } do
  for _, count in ipairs{ 0, 1, 10, 100 } do
    local what = case[2] .. ", " .. count .. " applications, " .. (case[1].badge and "running" or "badged") ..
      (case[1].ca and ", everything on" or case[1].pass and ", locked" or "")
    local phone = P.boot(case[1], { ios = case[2], apps = P.numbered(count, { running = true }) })
    phone:wait(0.7) -- so that the poll's tick falls into the opening
    phone:reset_counters()
    P.press_indicator(phone)
    phone:wait(0.55)
    local reads = phone:counters().settings_reads
    expect_eq(#P.items(phone), count, what .. ": all are listed")
    expect(reads <= 32 + count, what .. ": " .. reads .. " reads")
    expect(reads >= 4 + count, what .. ": the settings are read, and for each application")
    expect_eq(phone:counters().settings_writes, 0, what .. ": and not written")
    phone:settle()
    local function second()
      phone:reset_counters()
      phone:wait(1)
      return phone:counters().settings_reads
    end
    local open = second()
    expect_eq(second(), open, what .. ": an open panel reads steadily")
    P.close(phone)
    phone:wait(1)
    expect_eq(second(), 4, what .. ": and none but the poll afterwards")
    if args[1] then print(what, reads, open) end
  end
end
