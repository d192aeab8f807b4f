-- A person who listens changes every setting of the pane by speech alone: switches, lists, segments, the colours, and the
-- code, whose sheet tells the step and how much is typed, never what.
local P, S = require("pane"), require("speech")

local mail = "com.apple.mobilemail"
local paths = {
  root = {}, configuration = { "Configuration" }, marks = { "Configuration", "Indeterminate Badges" },
  reachability = { "Configuration", "Reachability" }, icon = { "Configuration", "Status Bar Icon" },
  passcode = { "Configuration", "Passcode Lock" }, application = { "Configuration", "Apps", mail },
}

for _, ios in ipairs{ "7.1", "8.1" } do
  local phone, pane = P.start({ enable = false }, { device = "iPhone 5s", ios = ios, voiceover = true })
  expect_eq((S.find(pane, "Share") or {}).traits, { "button" }, "a button without a word says what it does")
  local at = {}
  local function press(label)
    pane:activate(S.reach(pane, label))
    S.settle(pane)
  end
  -- The back button is called like the page before, or "Back".
  local function back()
    for _, element in ipairs(pane:spoken()) do
      if element.view.class == "UINavigationItemButtonView" then pane:activate(element) end
    end
    S.settle(pane)
  end
  local function go(path)
    for _ = 1, #at do back() end
    for _, label in ipairs(path) do press(label) end
    at = path
  end
  local function stored(setting)
    local settings = phone:settings()
    if setting.page == "application" then settings = settings[mail] or {} end
    return settings[setting.key]
  end

  for _, setting in ipairs(require("setting_keys")) do
    local path = paths[setting.page]
    if path then go(path) end
    if path and setting.kind:find("toggle") then
      press(setting.label)
      if pane:alert() then press("Cancel") end
      expect_eq(stored(setting), true, setting.label .. " is on")
      expect_eq(S.reach(pane, setting.label).value, "1", setting.label .. " says so")
    elseif setting.kind == "choice" and path then
      press(setting.key == "amount" and "2" or setting.label)
      if setting.key ~= "amount" then
        press(setting.titles[3])
        back()
      end
      expect_eq(stored(setting), setting.key == "amount" and "2" or setting.values[3], setting.label)
    elseif setting.kind == "color" then
      press(setting.label)
      local function element()
        for _, each in ipairs(pane:spoken()) do
          if each.traits[1] == "adjustable" then return each end
        end
      end
      expect_eq(S.words(element()), setting.label .. ", red", "the colour")
      pane:adjust(element(), "up")
      pane:adjust(element(), "up")
      expect_eq(element().value, "yellow", "two on")
      pane:adjust(element(), "down")
      press("Apply")
      press("OK")
      expect_eq(stored(setting), "orange", "is stored")
      back()
    end
  end

  -- The code: a first one, and a wrong old one.
  go(paths.passcode)
  local function says(words, what)
    pane:wait(0.1)
    local said = S.said(pane)
    expect_eq(said[#said], words, what)
  end
  press("Change Passcode")
  says("Enter your new passcode, Step 1 of 2, 0 of 4 digits entered", "the sheet")
  press("1")
  expect_eq(S.find(pane, "Enter your new passcode").value, "Step 1 of 2, 1 of 4 digits entered", "how much is typed")
  for digit in ("234"):gmatch("%d") do press(digit) end
  says("Re-enter your new passcode, Step 2 of 2, 0 of 4 digits entered", "the next step")
  S.enter(pane, "1234")
  expect_eq(phone:settings().password, "1234", "the code is set")
  press("Change Passcode")
  says("Enter your old passcode, Step 1 of 3, 0 of 4 digits entered", "now the old one is asked for")
  S.enter(pane, "1111")
  says("Wrong passcode. Try again.", "a wrong one is told")
  P.no_harm(phone, pane)
end
