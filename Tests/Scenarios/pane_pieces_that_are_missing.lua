-- The pane without its pictures, its texts, its neighbours, or a settings file that can be read: rows may be bare, but
-- nothing breaks and what is touched is stored.
local P = require("pane")

local support = "/Library/Application Support/Pendix/"

local function pictures()
  local list = {}
  for _, name in ipairs{ "background", "Pendix_Title", "happy", "Enable", "Configuration", "Contact", "dash", "dot", "preview",
    "PendixMiniNotification", "Pendix" } do
    for _, scale in ipairs{ "", "@2x", "@3x" } do list[#list + 1] = support .. name .. scale .. ".png" end
  end
  return list
end

-- No picture at all: every page opens, and a code can be set.
do
  local phone, pane = P.start({ pass = true }, { missing_files = pictures() })
  for _, path in ipairs{ { "Contact" }, { "Configuration", "Indeterminate Badges", "Mark Color" },
    { "Configuration", "Status Bar Icon", "Glow Color" }, { "Configuration", "Passcode Lock" } } do
    P.go(pane, path)
    if path[3] then
      pane:swipe("left")
      P.settle(pane)
      P.press(pane, "Apply")
      P.press(pane, "OK")
    elseif path[2] then
      P.press(pane, "Change Passcode")
      P.type(pane, "1234")
      P.type(pane, "1234")
    end
    for _ = 1, #path do P.back(pane) end
  end
  expect_eq({ phone:settings().colors, phone:settings().tint, phone:settings().password }, { "orange", "orange", "1234" },
    "everything works without pictures")
  P.no_harm(phone, pane)
end

-- Neighbours that are not installed: their rows lead nowhere, or to an empty page.
do
  local phone, pane = P.start({}, { hide_classes = { "TWTweetComposeViewController", "LAListenerSettingsViewController",
    "ALApplicationList" } })
  local bar = pane:find{ class = "UINavigationBar", visible = true }.screen
  pane:tap{ bar.x + bar.w - 25, bar.y + bar.h - 22 }
  pane:settle()
  P.go(pane, { "Configuration", "Activator" })
  expect_eq(pane:page().class, "configurationController", "nothing to share with, nothing to assign")
  P.go(pane, { "Apps" })
  expect_eq(#P.rows(pane), 0, "no list of applications, no rows")
  P.back(pane)
  P.toggle(pane, "Cards")
  expect_eq(phone:settings().ca, true, "the rest works")
  P.no_harm(phone, pane)
end

-- A language whose table is missing has no texts, and labels that lead to no key.
do
  local phone, pane = P.start({ enable = true }, { language = "it", missing_files = { support .. "Languages/it.plist" } })
  local rows = P.rows(pane)
  expect_eq(#rows, 3, "the rows are there")
  expect_eq(rows[1].label, "(null)", "without texts")
  pane:tap(pane:find{ class = "UISwitch" })
  pane:settle()
  expect_eq(phone:settings()["(null)"], true, "what is touched is stored under the name that was found")
  expect_eq(phone:settings().enable, true, "and changes no other setting")
  P.no_harm(phone, pane)
end

-- Files that hold something else, or nothing that can be read.
for _, text in ipairs{ "", "{ enable = YES;", "( enable )", "\0\1\2", "{ enable = ( 1 ); light = { a = b; }; amount = ( 2 ); "
  .. "position = { a = b; }; where = ( x ); colors = ( red ); tint = { a = b; }; password = ( 1, 2 ); pass = ( yes ); "
  .. "hasTouchID = { a = b; }; \"com.apple.mobilemail\" = ( 1 ); }" } do
  local phone = boot{ device = "iPhone 5s", settings_text = text }
  local pane = phone:open_settings()
  pane:settle()
  for _, path in ipairs{ {}, { "Configuration" }, { "Configuration", "Reachability" }, { "Configuration", "Passcode Lock" },
    { "Configuration", "Apps", "com.apple.mobilemail" }, { "Configuration", "Status Bar Icon", "Glow Color" } } do
    P.go(pane, path)
    pane:page()
    for _ = 1, #path do P.back(pane) end
  end
  expect(not P.row(pane, "Enable").value, "what is no switch's value is off")
  P.toggle(pane, "Enable")
  expect_eq(phone:settings().enable, true, "and is set by a touch")
  P.no_harm(phone, pane)
end
