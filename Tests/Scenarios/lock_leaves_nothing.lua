-- A lock that is opened, failed, unlocked and closed again and again leaves no object and no timer behind, and an
-- opening behind a lock reads the settings no more often than any other may.
local L = require("lock")

for _, settings in ipairs{ { clear = true }, { touchid = true, ask = true, paging = true } } do
  local phone = L.boot_locked(settings)
  local function round()
    L.tap_indicator(phone)
    if settings.ask then
      phone:tap(L.part(phone, "ask", -2))
      phone:settle()
      phone:finger(1)
      phone:finger(9)
      phone:settle()
      phone:tap(L.part(phone, "finger", 3))
      phone:settle()
    end
    L.enter(phone, "4321")
    L.enter(phone, "1234")
    L.tap_outside(phone)
    phone:wait(0.2)
  end
  round()
  round()
  local after_two = phone:counters()
  for _ = 3, 20 do round() end
  local after_all = phone:counters()
  expect_eq(after_all.live, after_two.live, "no object is left behind")
  expect_eq({ after_all.timers, after_all.views }, { after_two.timers, after_two.views }, "nor a timer or a view")

  phone:reset_counters()
  L.tap_indicator(phone)
  expect(phone:counters().settings_reads <= 32 + #L.ids, "an opening reads the settings " ..
    phone:counters().settings_reads .. " times")
  L.no_harm(phone)
end
