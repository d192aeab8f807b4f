-- Proves that the Settings application and the home screen of one device share its files and its clock, and nothing else.
local phone = boot { device = "iPhone 5s", settings = { enable = true, light = false } }
phone:wait(0.4)
local pane = phone:open_settings()
expect_near(pane:now(), 0.4, 1e-9, "Settings starts at the device's time")
expect_eq(pane:page().class, "PendixSettingsController", "on the extension's page")
expect_eq(phone:foreground(), nil, "the home screen knows nothing of it")
pane:settle()

-- One clock, whichever is told to wait.
for _, who in ipairs { phone, pane } do
  local before = phone:now()
  who:wait(1.25)
  expect_near(phone:now(), before + 1.25, 1e-9, "the phone's time")
  expect_near(pane:now(), phone:now(), 1e-9, "is the pane's")
end

-- What Settings writes is read by the home screen's next poll, and not before it.
expect(phone:indicator().visible, "the indicator is there")
pane:toggle("Enable")
expect_eq(phone:settings().enable, false, "the file has it at once")
expect_eq(pane:settings().enable, false, "and is the same for both")
pane:wait(1)
expect(not phone:indicator().visible, "a second later the home screen has seen it")

-- The other way: a page reads what is there when it is built.
phone:set("light", true)
pane:open("Configuration")
pane:settle()
expect_eq(pane:page().rows[1].value, true, "the page shows what others wrote")

-- Events stay with the process that they happened in.
pane:settle()
local pane_logs, phone_launch = #pane:events("listener"), #phone:events("listener")
expect_eq(pane_logs, 0, "no listener is registered in Settings")
expect(phone_launch > 0, "but on the home screen")

-- A restart that Settings asks for starts the home screen anew at that moment; Settings goes on.
local icon = phone:icon("com.apple.mobilemail")
local label = pane:page().rows[9].label
pane:toggle(label)
pane:settle()
local shown = pane:alert()
expect_eq(#shown.buttons, 2, "an alert asks")
pane:press(shown.buttons[2])
local restart = pane:events("respring")
expect_eq(#restart, 1, "Settings has asked")
expect_eq(#phone:events("respring"), 1, "the home screen was restarted")
expect_near(phone:events("respring")[1].t, restart[1].t, 1e-9, "at the same time")
expect(not pcall(phone.again, phone, icon), "views from before are gone")
pane:settle()
expect_eq(pane:alert(), nil, "the alert is gone")
expect_eq(pane:page().class, "configurationController", "and the page is still there")
phone:wait(1)
expect(phone:icon("com.apple.mobilemail"), "the home screen is there again")
expect_eq(#phone:events("crash"), 0, "nothing crashed")

-- Opened once more, it starts anew; the old one is closed.
local again = phone:open_settings()
again:settle()
expect_eq(again:page().class, "PendixSettingsController", "on the first page")
local ok, problem = pcall(pane.page, pane)
expect(not ok and problem:find("closed", 1, true), "the first is closed: " .. tostring(problem))
expect_eq(#again:events("warning"), 0, "without a warning")
