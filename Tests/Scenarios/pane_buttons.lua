-- What the pane does beside storing: restarting the home screen, sharing, Activator's page, one page an application.
local P = require("pane")

-- A restart, wanted or not.
do
  local phone, pane = P.start{ enable = true }
  P.go(pane, { "Configuration" })
  P.toggle(pane, "Hide Badges")
  P.press(pane, "Cancel")
  expect_eq(#phone:events("respring"), 0, "cancel restarts nothing")
  expect_eq(phone:settings().b, true, "but keeps the value")
  P.toggle(pane, "Hide Badges")
  P.press(pane, "OK")
  expect_eq(#phone:events("respring") + #pane:events("respring") > 0, true, "OK restarts the home screen")
  expect_eq(phone:settings().b, false, "with the value stored")
  phone:wait(1)
  expect(phone:indicator().visible, "the home screen is back")
  P.go(pane, { "Indeterminate Badges" })
  for _, label in ipairs{ "Indeterminate Badges", "Automatic Color" } do
    P.toggle(pane, label)
    expect_eq(pane:alert().buttons, { "Cancel", "OK" }, label .. " offers a restart")
    P.press(pane, "Cancel")
  end
  P.no_harm(phone, pane)
end

-- The share sheet carries the text.
do
  local phone, pane = P.start{}
  local bar = pane:find{ class = "UINavigationBar", visible = true }.screen
  pane:tap{ bar.x + bar.w - 25, bar.y + bar.h - 22 }
  pane:settle()
  local tweets = pane:events("tweet")
  expect_eq(#tweets, 1, "the sheet is shown")
  expect_eq(tweets[1].text, "Badges and running apps at a tap on the status bar: I use Pendix.", "with the text")
  P.no_harm(phone, pane)
end

-- Activator's page is modal and goes only by its button.
do
  local phone, pane = P.start{}
  P.go(pane, { "Configuration" })
  pane:open("Activator")
  local bars = pane:all{ class = "UINavigationBar" }
  expect(bars[#bars].screen.y > 100, "it comes from below")
  pane:settle()
  local shown = pane:events("activator_settings")
  expect_eq(#shown, 1, "the page is shown")
  expect_eq(shown[1].listener, "org.quillhub.Pendix", "for the extension's listener")
  expect_eq(pane:page().title, "Activator", "its title")
  pane:shot("activator")
  P.press(pane, "Cancel")
  expect_eq(pane:page().class, "configurationController", "cancel leads back")
  P.no_harm(phone, pane)
end

-- Applications: those with an icon of their own, named by identifier, each with values of its own.
do
  local apps = { { id = "com.apple.mobilemail", name = "Mail" }, { id = "org.example.plain", name = "Plain", icon = false },
    { id = "org.example.drawn", name = "Drawn" } }
  local phone, pane = P.start({ ["com.apple.mobilemail"] = "no dictionary" }, { apps = apps })
  P.go(pane, { "Configuration", "Apps" })
  local labels = {}
  for _, row in ipairs(P.rows(pane)) do
    labels[row.label] = true
    expect(row.icon, row.label .. " shows its icon")
  end
  expect(labels["com.apple.mobilemail"] and labels["org.example.drawn"], "applications with icons are listed")
  expect(not labels["org.example.plain"], "an application without one is not")
  expect(not labels["com.apple.WebViewService"], "nor is the system's own")
  P.go(pane, { "com.apple.mobilemail" })
  expect_eq(pane:page().title, "com.apple.mobilemail", "the page is named by the identifier")
  expect_eq(P.row(pane, "Hide from Pendix").value, false, "a value of another kind is off")
  P.toggle(pane, "Hide from Pendix")
  expect_eq(phone:settings()["com.apple.mobilemail"], { hide_perapp = true }, "and is replaced")
  P.toggle(pane, "No Mark on Icon")
  P.toggle(pane, "Hide from Pendix")
  expect_eq(phone:settings()["com.apple.mobilemail"], { hide_perapp = false, badge_perapp = true }, "both in one entry")
  P.back(pane)
  P.go(pane, { "org.example.drawn" })
  expect_eq(P.row(pane, "No Mark on Icon").value, false, "another application has its own")
  P.no_harm(phone, pane)
end

-- An alert answers when its page was left under it, by a finger that lay on the way back when it came.
for _, answer in ipairs{ "OK", "Cancel" } do
  local phone, pane = P.start{ enable = true }
  P.go(pane, { "Configuration" })
  for _ = 1, 3 do
    pane:drag({ 160, 400 }, 0, -300, 0.5)
    pane:settle()
  end
  pane:down({ 30, 42 }, 2)
  pane:tap{ 280, pane:find{ text = "Hide Badges" }.screen.y + 10 }
  pane:wait(0.1)
  pane:up(2)
  pane:settle()
  expect_eq(pane:page().title, "Pendix", "the page is left")
  expect_eq(pane:alert().title, "Restart Home Screen?", "under the alert")
  pane:press(answer)
  pane:settle()
  expect_eq(#pane:events("crash"), 0, answer .. " harms nobody")
  expect_eq(#phone:events("respring"), answer == "OK" and 1 or 0, "and does what it says")
end
