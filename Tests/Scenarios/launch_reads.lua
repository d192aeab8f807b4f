-- A launch reads the settings file in proportion to the badges that it draws, and a badge that changes costs no more
-- than a look through the list.
local P = require("panel")
local settings = {
  nothing = {},
  pulsing = { enable = true, glow = true, tint = "green" },
  everything = { enable = true, glow = true, hide_t = true, b = true, newb = true, colors = "blue", auto = true },
  running = { enable = true, badge = true, glow = true },
}
for name, values in pairs(settings) do
  for _, ios in ipairs{ "7.1", "8.1" } do
    local reads, change = {}
    for _, count in ipairs{ 10, 20, 40, 80, 160, 320 } do
      local what = ("%s, %s, %d badges"):format(name, ios, count)
      local own = {}
      for key, value in pairs(values) do own[key] = value end
      for n = 1, count, 3 do own[P.app(n)] = { hide_perapp = n % 2 == 0, badge_perapp = n % 2 == 1 } end
      local phone = P.boot(own, { ios = ios, apps = P.numbered(count) })
      reads[#reads + 1] = phone:counters().settings_reads
      expect(reads[#reads] <= 30 + 4 * count, what .. ": " .. reads[#reads] .. " reads")
      phone:reset_counters()
      phone:badge(P.app(2), 77)
      change = phone:counters().settings_reads
      expect(change >= 1 and change <= 12 + count, what .. ": a change reads " .. change .. " times")
    end
    for i = 3, #reads do
      expect_eq(reads[i] - reads[i - 1], 2 * (reads[i - 1] - reads[i - 2]), name .. ", " .. ios .. ": reads lie on a line")
    end
    if args[1] then print(name, ios, table.concat(reads, " "), change) end
  end
end
