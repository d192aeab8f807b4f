-- Two fingers on the pane, and ways around a page: the passcode page is not used without the code, and no sheet outlives
-- what it answers to.
local P = require("pane")

local code = "2468"
local devices = { { "iPhone 6", "8.1" }, { "iPhone 4S", "7.1" }, { "iPad Air", "8.1" } }

local function at(pane, label)
  local view = pane:find{ text = label, visible = true }
  return { view.screen.x + 10, view.screen.y + 10 }
end

local function start(device, path)
  local phone, pane = P.start({ enable = true, pass = true, password = code }, { device = device[1], ios = device[2] })
  P.go(pane, path or {})
  return phone, pane
end

-- The configuration page, at its end.
local function at_the_end(device)
  local phone, pane = start(device, { "Configuration" })
  for _ = 1, 5 do
    pane:drag({ device[1]:find("iPad") and 600 or 160, 400 }, 0, -300, 0.2)
    pane:settle()
  end
  return phone, pane
end

-- Both fingers lie; the first is lifted, and after so many seconds the second.
local function lift_in_turn(pane, first, second, seconds)
  pane:down(first, 1)
  pane:wait(0.3)
  pane:down(second, 2)
  pane:wait(0.05)
  pane:up(1)
  pane:wait(seconds)
  pane:up(2)
  pane:settle()
end

local function asked(pane, message)
  local sheet = pane:sheet()
  expect_eq(sheet and sheet.title, "Enter Passcode", message)
end

-- Asked at last, the page is left by Cancel, and opens with the code.
local function gate_holds(phone, pane, message)
  asked(pane, message)
  P.press(pane, "Cancel")
  expect(pane:page().class ~= "passwordController" or pane:sheet(), message .. ": without the code the page is left")
  P.no_harm(phone, pane)
  expect_eq(pane:events("warning"), {}, message .. ": nothing was presented in vain")
end

-- From the list of moments an iPad's list at the left leads away; that is no coming back.
do
  local device = { "iPad 2", "7.1" }
  local phone, pane = start(device, { "Configuration", "Passcode Lock" })
  P.type(pane, code)
  P.go(pane, { "Require Passcode" })
  for _, view in ipairs(pane:all{ text = "Pendix", visible = true }) do
    if view.screen.x < 200 then pane:tap(view) end
  end
  pane:settle()
  P.go(pane, { "Configuration", "Passcode Lock" })
  gate_holds(phone, pane, device[1] .. ", the list left sideways")
end

for _, device in ipairs(devices) do
  -- Activator's sheet comes first: the gate follows when it is gone.
  for _, seconds in ipairs{ 0.05, 0.2 } do
    local phone, pane = at_the_end(device)
    lift_in_turn(pane, at(pane, "Activator"), at(pane, "Passcode Lock"), seconds)
    if not pane:sheet() then P.press(pane, "Cancel") end
    gate_holds(phone, pane, device[1] .. ", under Activator's sheet, " .. seconds)
  end

  -- Another page comes over the one that asks.
  do
    local phone, pane = at_the_end(device)
    lift_in_turn(pane, at(pane, "Passcode Lock"), at(pane, "Apps"), 0.05)
    asked(pane, device[1] .. ", below another page")
    P.press(pane, "Cancel")
    gate_holds(phone, pane, device[1] .. ", below another page")
    expect_eq(pane:page().class, "configurationController", "left by the second Cancel")
    P.go(pane, { "Passcode Lock" })
    P.type(pane, code)
    P.toggle(pane, "Ask First")
    expect_eq(phone:settings().ask, true, "with the code the page can be used")
  end

  -- A finger on the way back leaves the page under its sheet: the sheet still answers.
  local back = { device[1]:find("iPad") and 350 or 30, 42 }
  for _, answer in ipairs{ "type", "press" } do
    local phone, pane = at_the_end(device)
    lift_in_turn(pane, at(pane, "Passcode Lock"), back, 0.1)
    asked(pane, device[1] .. ", the page left")
    P[answer](pane, answer == "type" and code or "Cancel")
    expect(not pane:sheet(), "the sheet is gone")
    P.no_harm(phone, pane)
  end
end

-- So does Activator's, whose page a finger on the way back has taken away.
for _, device in ipairs(devices) do
  local phone, pane = at_the_end(device)
  lift_in_turn(pane, { device[1]:find("iPad") and 350 or 30, 42 }, at(pane, "Activator"), 0.2)
  if pane:page().class == "LAListenerSettingsViewController" then P.press(pane, "Cancel") end
  expect_eq(pane:page().class, "PendixSettingsController", device[1] .. ": Activator's sheet can be left")
  P.no_harm(phone, pane)
end

-- Where the code is asked for first, Activator's sheet does not come.
do
  local phone, pane = at_the_end(devices[3])
  lift_in_turn(pane, at(pane, "Passcode Lock"), at(pane, "Activator"), 0)
  gate_holds(phone, pane, "two sheets at once")
end

-- A character of two units goes as a whole.
do
  local _, pane = start(devices[1], { "Configuration", "Passcode Lock" })
  P.type(pane, "2😀4")
  expect_eq(pane:sheet().dots, 2, "a digit, none, a digit")
  P.type(pane, "86")
  asked(pane, "another code")
  P.type(pane, code)
  expect_eq(pane:sheet(), nil, "the right one opens the page")
end
