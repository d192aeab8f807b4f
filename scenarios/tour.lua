-- The tour: badges arrive on a home screen, the indicator appears and pulses, and the panel grows out of it.
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

local function press_indicator()
  local i = phone:indicator()
  phone:tap{ i.x + i.w / 2, i.y + i.h / 2 }
end
local function item(id) return phone:find{ window = "overlay", name = id } end

press_indicator()
phone:filmstrip("5-the-panel-grows-out-of-it", 0.6, 7)
phone:settle()
phone:shot("6-the-panel")

local flung = item(phone_app).screen
phone:down{ flung.x + 30, flung.y + 30 }
for y = 0, 60, 6 do
  phone:move(flung.x + 30, flung.y + 30 - y)
  phone:wait(1 / 60)
end
phone:shot("7-a-badge-is-flung-off")
phone:up()
phone:settle()
expect(item(phone_app) == nil, "and its badge is cleared")

phone:hold(item(messages), 2)
phone:settle()
phone:shot("8-clear-them-all")
phone:tap(phone:find{ window = "overlay", tag = 101 })
phone:settle()

phone:tap{ 180, 600 }
phone:filmstrip("9-and-closes-into-it", 0.6, 7)
phone:settle()

phone:set{ badge = true, light = true }
phone:wait(1)
expect_eq(phone:indicator().image, "PendixSwitcher", "running mode has its own image")
for _, id in ipairs{ "com.apple.mobilecal", "com.apple.mobiletimer", "com.apple.Preferences", mail } do
  phone:run(id)
  phone:settle()
end
phone:home()
phone:settle()
press_indicator()
phone:settle()
phone:shot("10-running-mode")
phone:tap(item("com.apple.mobiletimer"))
phone:settle()
expect_eq(phone:foreground(), "com.apple.mobiletimer", "a tap opens the application")
phone:shot("11-an-application-opens")
phone:home()
phone:settle()

for _, id in ipairs{ mail, messages, facetime, phone_app } do phone:badge(id, 0) end
phone:settle()
phone:shot("12-all-read")
for _, event in ipairs(phone:events()) do
  local rest = {}
  for key, value in pairs(event) do
    if key ~= "t" and key ~= "kind" then rest[#rest + 1] = key .. "=" .. tostring(value) end
  end
  print(string.format("%7.3f  %-12s %s", event.t, event.kind, table.concat(rest, " ")))
end
