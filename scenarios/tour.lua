-- The tour: a home screen on which badges arrive, and the indicator that appears and pulses.
-- Run it with scripts/run; it leaves pictures and the event log under build/tour/.
local mail, messages, phone_app = "com.apple.mobilemail", "com.apple.MobileSMS", "com.apple.mobilephone"
local facetime = "com.apple.facetime"

local phone = boot{ settings = { enable = true, glow = true, hide_t = true, tint = "cyan" } }
phone:set("tint", "orange")
phone:wait(1)
expect(phone:indicator().visible, "a launch shows the indicator, whatever hide_t says")
phone:set{ tint = "cyan", hide_t = false }
phone:wait(1)
phone:set("hide_t", true)
phone:wait(1)
expect(not phone:indicator().visible, "without badges it hides")
phone:shot("1-quiet-home-screen")

phone:badge(mail, 3)
expect(phone:indicator().visible, "the first badge brings it back")
phone:badge(messages, 12)
phone:badge(facetime, 1)
phone:shot("2-badges-arrive")
phone:filmstrip("3-the-indicator-pulses", 2.66, 8)

phone:set("tint", "magenta")
phone:badge(phone_app, 1)
phone:wait(0.7)
phone:shot("4-more-badges")

phone:set("badge", true)
phone:wait(1)
expect_eq(phone:indicator().image, "PendixSwitcher", "running mode has its own image")
phone:shot("5-running-mode")

for _, id in ipairs{ mail, messages, facetime, phone_app } do phone:badge(id, 0) end
phone:settle()
phone:shot("6-all-read")
for _, event in ipairs(phone:events()) do
  local rest = {}
  for key, value in pairs(event) do
    if key ~= "t" and key ~= "kind" then rest[#rest + 1] = key .. "=" .. tostring(value) end
  end
  print(string.format("%7.3f  %-12s %s", event.t, event.kind, table.concat(rest, " ")))
end
