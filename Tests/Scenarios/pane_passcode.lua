-- The passcode's life in the pane: set, changed, asked for, cancelled. Who does not know the code changes nothing.
local P = require("pane")

local page = { "Configuration", "Passcode Lock" }

local function at_lock(settings)
  local phone, pane = P.start(settings)
  P.go(pane, page)
  return phone, pane
end

-- A second sheet over the first would be refused with a warning.
local function no_harm(phone, pane)
  expect_eq(pane:events("warning"), {}, "no sheet was raised over another")
  P.no_harm(phone, pane)
end

local function sheet(pane, group, dots, message)
  local s = pane:sheet()
  expect_eq(s and { s.group, s.dots }, { group, dots }, message)
end

local function no_sheet(pane, message)
  expect_eq(pane:sheet(), nil, message)
  expect_eq(pane:page().class, "passwordController", message)
end

-- The first code: digit by digit, with a letter, a deletion, and a repetition that is wrong at first.
do
  local phone, pane = at_lock{ enable = true }
  P.press(pane, "Change Passcode")
  local shown = pane:sheet()
  expect_eq({ shown.title, shown.label, shown.cancel }, { "Change Passcode", "Enter your new passcode", "Cancel" },
    "without a code it begins with the new one")
  sheet(pane, 1, 0, "nothing typed")
  pane:shot("first-code")
  for _, step in ipairs{ { "1", 1 }, { "a", 1 }, { "2", 2 }, { "34"} } do
    P.type(pane, step[1])
    if step[2] then sheet(pane, 1, step[2], "after " .. step[1]) end
  end
  sheet(pane, 2, 0, "then the same again")
  P.type(pane, "999")
  pane:erase(1)
  pane:settle()
  sheet(pane, 2, 2, "deleting restores a dash")
  P.type(pane, "99")
  sheet(pane, 2, 0, "a wrong repetition is typed again")
  expect_eq(P.vibrations(pane), 1, "after a vibration")
  expect_eq(phone:settings().password, nil, "nothing is stored yet")
  P.type(pane, "12349")
  no_sheet(pane, "the right one ends it, what is typed while the sheet goes does not count")
  expect_eq(phone:settings(), { enable = true, hasTouchID = "1", password = "1234" }, "the code is stored, nothing else")
  no_harm(phone, pane)
end

-- Another code: the old one first.
do
  local phone, pane = at_lock{ password = "1234" }
  P.press(pane, "Change Passcode")
  sheet(pane, 0, 0, "the old code first")
  expect_eq(pane:sheet().label, "Enter your old passcode", "the old code first")
  P.type(pane, "4321")
  sheet(pane, 0, 0, "a wrong one leads nowhere")
  expect_eq(P.vibrations(pane), 1, "but vibrates")
  P.type(pane, "1234")
  sheet(pane, 1, 0, "the right one leads on")
  P.type(pane, "1234")
  sheet(pane, 2, 0, "any new code will do, the old one too")
  P.type(pane, "0042")
  P.type(pane, "1234")
  no_sheet(pane, "done")
  expect_eq(phone:settings().password, "1234", "stored")
end

-- Cancelled at every step, the stored code stays; and the next time begins anew.
for steps = 0, 2 do
  local phone, pane = at_lock{ password = "1234", pass = false }
  P.press(pane, "Change Passcode")
  for i = 1, steps do P.type(pane, ({ "1234", "5678" })[i]) end
  P.type(pane, "56")
  sheet(pane, steps, 2, "step " .. steps)
  P.press(pane, "Cancel")
  no_sheet(pane, "cancelled at step " .. steps)
  expect_eq(phone:settings().password, "1234", "cancelled at step " .. steps)
  P.press(pane, "Change Passcode")
  sheet(pane, 0, 0, "it begins anew")
  P.press(pane, "Cancel")
  no_harm(phone, pane)
end

-- The lock's switch: free while there is no code, then only with it.
do
  local phone, pane = at_lock{}
  P.toggle(pane, "Lock Panel")
  no_sheet(pane, "no code, no question")
  expect_eq(phone:settings().pass, true, "on at once")
  P.press(pane, "Change Passcode")
  P.type(pane, "1111")
  P.type(pane, "1111")

  P.toggle(pane, "Lock Panel")
  sheet(pane, 0, 0, "with a code it is asked for")
  expect_eq(pane:sheet().title, "Enter Passcode", "with a code it is asked for")
  P.press(pane, "Cancel")
  expect_eq(phone:settings().pass, true, "cancelled: still on")
  expect_eq(P.row(pane, "Lock Panel").value, true, "and the switch is back")
  P.toggle(pane, "Lock Panel")
  P.type(pane, "1112")
  sheet(pane, 0, 0, "a wrong code")
  phone:set("light", true)
  P.type(pane, "1111")
  no_sheet(pane, "the right code")
  expect_eq(phone:settings().pass, false, "off")
  expect_eq(P.row(pane, "Lock Panel").value, false, "as the switch shows it")
  P.toggle(pane, "Lock Panel")
  P.type(pane, "1111")
  expect_eq(phone:settings().pass, true, "and on again the same way")
  P.back(pane)
  P.go(pane, { "Passcode Lock" })
  sheet(pane, 0, 0, "who comes back is asked all the same")
  no_harm(phone, pane)
end

-- The way in.
do
  local phone, pane = at_lock{ pass = true, password = "2468" }
  sheet(pane, 0, 0, "the code is asked for")
  pane:shot("way-in")
  P.type(pane, "8642")
  sheet(pane, 0, 0, "a wrong one")
  P.press(pane, "Cancel")
  expect_eq(pane:page().class, "configurationController", "without the code there is no way in")
  P.go(pane, { "Passcode Lock" })
  sheet(pane, 0, 0, "asked for again")
  P.type(pane, "246824")
  no_sheet(pane, "the right one opens the page")
  P.choose(pane, "Require Passcode", "Every Time")
  no_sheet(pane, "coming back from the list it is not asked for")
  expect_eq(phone:settings().where, "every", "chosen")
  P.back(pane)
  P.go(pane, { "Passcode Lock" })
  sheet(pane, 0, 0, "but on the way in it is")
  P.type(pane, "2468")
  P.press(pane, "Change Passcode")
  P.press(pane, "Cancel")
  no_sheet(pane, "nor after another sheet")
  no_harm(phone, pane)
end

-- A switch that asked for nothing does not open the way in either.
do
  local phone, pane = at_lock{}
  P.toggle(pane, "Lock Panel")
  phone:set("password", "1111")
  P.back(pane)
  P.go(pane, { "Passcode Lock" })
  sheet(pane, 0, 0, "with a code, it is asked for")
  no_harm(phone, pane)
end

-- Settings under which the page opens by itself, broken ones among them.
for _, settings in ipairs{ { pass = true }, { pass = true, password = "" }, { pass = false, password = "1111" },
  { pass = true, password = 1111 }, { pass = true, password = { 1 } }, { pass = "maybe", password = "1111" },
  { pass = true, password = { a = "b" }, where = 7, hasTouchID = 1 } } do
  local phone, pane = at_lock(settings)
  no_sheet(pane, string.format("%s", settings))
  no_harm(phone, pane)
end
