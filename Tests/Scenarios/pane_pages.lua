-- What stands on every page, in its order: labels, kinds, explaining texts, choices, icons; in two languages, and in
-- English where the pane has no translation.
local P = require("pane")

local function summary(pane)
  local list = {}
  for i, row in ipairs(P.rows(pane)) do list[i] = row.kind .. ": " .. row.label end
  return list
end

local function explained(pane, page)
  for _, row in ipairs(P.rows(pane)) do
    expect(row.footer and #row.footer > 0 and row.footer ~= "(null)", page .. ": " .. row.label .. " is explained")
  end
end

local pages = {
  { {}, "PendixSettingsController", { "switch: Enable", "link: Configuration", "link: Contact" }, bare = true },
  { { "Configuration" }, "configurationController", { "switch: Light Appearance", "switch: Clear Background",
    "switch: Blur Background", "switch: Fast Animations", "switch: Cards", "link: Reachability", "switch: Close Buttons",
    "switch: Pages", "switch: Hide Badges", "link: Indeterminate Badges", "switch: Running Apps",
    "segment: Apps in a Row", "link: Activator", "link: Apps", "link: Status Bar Icon", "link: Passcode Lock" } },
  { { "Configuration", "Indeterminate Badges" }, "indeterminateController",
    { "switch: Indeterminate Badges", "switch: Automatic Color", "link: Mark Color" } },
  { { "Configuration", "Reachability" }, "reachController", { "switch: Reachability", "choice: Position" } },
  { { "Configuration", "Status Bar Icon" }, "pendixIconController",
    { "switch: Hide Icon", "switch: Only with Badges", "switch: Pulse", "link: Glow Color" } },
  { { "Configuration", "Passcode Lock" }, "passwordController", { "switch: Lock Panel", "switch: Unlock with Touch ID",
    "switch: Show Digits", "choice: Require Passcode", "switch: Ask First", "button: Change Passcode" } },
  { { "Configuration", "Apps", "com.apple.mobilemail" }, "appController",
    { "switch: Hide from Pendix", "switch: No Mark on Icon" } },
  { { "Contact" }, "creatorsController", {}, bare = true },
}

local phone, pane = P.start{}
for _, page in ipairs(pages) do
  P.go(pane, page[1])
  expect_eq(pane:page().class, page[2], "the page behind the row")
  expect_eq(summary(pane), page[3], page[2])
  if not page.bare then explained(pane, page[2]) end
  for _ = 1, #page[1] do P.back(pane) end
end
for _, row in ipairs(P.rows(pane)) do expect(row.icon, row.label .. " has a picture on the first page") end

-- Choices.
P.go(pane, { "Configuration" })
expect_eq(P.row(pane, "Apps in a Row").choices, { "1", "2", "3", "4" }, "rows of the panel on a phone")
P.go(pane, { "Reachability" })
expect_eq(P.row(pane, "Position").choices, { "Top", "Middle", "Bottom" }, "positions")
P.back(pane)
P.go(pane, { "Passcode Lock" })
expect_eq(P.row(pane, "Require Passcode").choices, { "When Locked", "Every Time", "After Sleep" }, "moments")
P.no_harm(phone, pane)

-- What the appearance is explained by follows the switch above it.
do
  local _, pane = P.start{}
  P.go(pane, { "Configuration" })
  -- The text that can be read under the row, which must be the row's.
  local function explains()
    local text = P.row(pane, "Clear Background").footer
    return pane:find{ class = "UILabel", text = text, visible = true } and text
  end
  local dark = explains()
  P.toggle(pane, "Light Appearance")
  local light = explains()
  expect(light and light ~= dark, "another text in light appearance")
  expect_eq(P.row(pane, "Light Appearance").value, true, "the switch stays as it was touched")
  P.toggle(pane, "Light Appearance")
  expect_eq(explains(), dark, "and back")
  local _, again = P.start{ light = true }
  P.go(again, { "Configuration" })
  expect_eq(P.row(again, "Clear Background").footer, light, "the same when the page is opened in light appearance")
end

-- Devices: no sensor, no row for it; an iPad has room for five.
do
  local _, pane = P.start({}, { device = "iPhone 5" })
  P.go(pane, { "Configuration", "Passcode Lock" })
  expect_eq(#P.rows(pane), 5, "no Touch ID row without a sensor")
  expect_eq(P.row(pane, "Unlock with Touch ID"), nil, "no Touch ID row without a sensor")
  local _, tablet = P.start({}, { device = "iPad 2" })
  P.go(tablet, { "Configuration" })
  expect_eq(P.row(tablet, "Apps in a Row").choices, { "1", "2", "3", "4", "5" }, "rows of the panel on an iPad")
end

-- The page behind the last row stays as it is when the device is turned; so does Settings, until it is left.
for _, profile in ipairs{ { "iPhone 6", "8.1", 375 }, { "iPad Air", "7.1", 768 } } do
  local _, pane = P.start({}, { device = profile[1], ios = profile[2] })
  P.go(pane, { "Contact" })
  local before = pane:find{ text = "Pendix", class = "UILabel", visible = true }.screen
  for _, orientation in ipairs{ 3, 4, 1 } do
    pane:rotate(orientation)
    pane:settle()
    local what = profile[1] .. ", turned to " .. orientation
    expect_eq(pane:find{ class = "UIWindow" }.screen.w, profile[3], what .. ": the page stays upright")
    expect_eq(pane:find{ text = "Pendix", class = "UILabel", visible = true }.screen, before, what .. ": as it is")
  end
  P.back(pane)
  expect_eq(pane:page().class, "PendixSettingsController", profile[1] .. ": its button leads back")
  pane:rotate(3)
  pane:settle()
  expect(pane:find{ class = "UIWindow" }.screen.w > profile[3], profile[1] .. ": the first page turns")
  P.no_harm(pane)
end

-- Languages.
for language, first in pairs{ it = "Attiva", es = "Enable", fr = "Enable" } do
  local phone, pane = P.start({}, { language = language })
  expect_eq(P.rows(pane)[1].label, first, language)
  P.toggle(pane, first)
  expect_eq(phone:settings().enable, true, language .. ": the label leads back to the key")
  pane:open(P.rows(pane)[2].label)
  pane:settle()
  expect_eq(#P.rows(pane), 16, language .. ": the same rows")
  explained(pane, language)
  P.no_harm(phone, pane)
end
