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
  local at = {}
  local function press(label)
    pane:activate(S.reach(pane, label))
    S.settle(pane)
  end
  -- The back button, by the name of the page before.
  local function back()
    at[#at] = nil
    press(#at == 0 and "Pendix" or at[#at])
  end
  local function go(path)
    while #at > 0 do back() end
    for _, label in ipairs(path) do
      press(label)
      at[#at + 1] = label
    end
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
        press(at[#at])
      end
      expect_eq(stored(setting), setting.key == "amount" and "2" or setting.values[3], setting.label)
    elseif setting.kind == "color" then
      press(setting.label)
      local cards = pane:find{ class = "cards" }.screen
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
      press(at[#at])
    end
  end

  -- The code: a first one, a wrong and the right old one, another.
  go(paths.passcode)
  S.said(pane)
  local function types(digits, words)
    for digit in digits:gmatch("%d") do press(digit) end
    expect_eq(S.said(pane)[1], words, "after " .. digits)
  end
  press("Change Passcode")
  expect_eq(S.said(pane)[1], "Enter your new passcode, Step 1 of 2, 0 of 4 digits entered", "the sheet")
  press("1")
  expect_eq(S.find(pane, "Enter your new passcode").value, "Step 1 of 2, 1 of 4 digits entered", "how much is typed")
  types("234", "Re-enter your new passcode, Step 2 of 2, 0 of 4 digits entered")
  types("1234", S.said(pane)[1])
  expect_eq(phone:settings().password, "1234", "the code is set")
  P.no_harm(phone, pane)
end
