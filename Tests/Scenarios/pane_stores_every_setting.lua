-- Every switch, list and segment of every page, changed by touches: the file then holds exactly that key with that
-- type and value, and everything else as it was.
local P = require("pane")

local mail = "com.apple.mobilemail"
-- The way to each page, and what asks for a restart.
local paths = {
  root = {}, configuration = { "Configuration" }, marks = { "Configuration", "Indeterminate Badges" },
  reachability = { "Configuration", "Reachability" }, icon = { "Configuration", "Status Bar Icon" },
  passcode = { "Configuration", "Passcode Lock" }, application = { "Configuration", "Apps", mail },
}
local restarts = { b = true, newb = true, auto = true }

-- Page, label, key; a switch unless it has choices, given as title and stored value. Colours and the code have pages of
-- their own, and scenarios.
local settings = {}
for _, setting in ipairs(require("setting_keys")) do
  local path = paths[setting.page]
  if path and setting.kind ~= "color" and setting.kind ~= "code" then
    local entry = { path, setting.label, setting.key, restart = restarts[setting.key],
      inside = setting.page == "application" and mail or nil }
    for i, value in ipairs(setting.values) do
      -- Five in a row are for an iPad.
      if value ~= "5" then entry[#entry + 1] = { setting.titles[i], value } end
    end
    settings[#settings + 1] = entry
  end
end
expect(#settings > 20, "there are settings")

local function copy(t)
  local result = {}
  for k, v in pairs(t) do result[k] = type(v) == "table" and copy(v) or v end
  return result
end

local start = { enable = false, tint = "blue", ["com.apple.mobilemail"] = { other = "kept" }, odd = { 1, 2 } }
local phone, pane = P.start(start)
local wanted = copy(phone:settings())
expect_eq(wanted.hasTouchID, "1", "the sensor is on record")

local function stored(entry, value, message)
  local target = entry.inside and wanted[entry.inside] or wanted
  target[entry[3]] = value
  expect_eq(phone:settings(), wanted, entry[3] .. ": " .. message)
end

local function restart_offered(entry)
  local alert = pane:alert()
  expect_eq(alert ~= nil, entry.restart or false, entry[3] .. ": whether a restart is offered")
  if not alert then return end
  expect_eq(alert, { title = "Restart Home Screen?",
    message = "The change takes effect when the Home screen starts again.", buttons = { "Cancel", "OK" } }, entry[3])
  P.press(pane, "Cancel")
  expect_eq(pane:alert(), nil, entry[3] .. ": cancel leaves the page")
end

local function change(entry, value)
  P.toggle(pane, entry[2])
  restart_offered(entry)
  stored(entry, value, value and "on" or "off")
  expect_eq(P.row(pane, entry[2]).value, value, entry[3] .. ": as the row shows it")
end

local at = nil
for _, entry in ipairs(settings) do
  if at ~= entry[1] then
    for _ = 1, at and #at or 0 do P.back(pane) end
    P.go(pane, entry[1])
    at = entry[1]
  end
  if not entry[4] then
    change(entry, true)
    change(entry, false)
    change(entry, true)
  end
  for i = 4, #entry do
    P.choose(pane, entry[2], entry[i][1])
    stored(entry, entry[i][2], entry[i][1])
    expect_eq(P.row(pane, entry[2]).value, entry[i][1], entry[3] .. ": as the row shows it")
  end
end
expect_eq(#phone:events("respring"), 0, "nothing was restarted")
P.no_harm(phone, pane)

-- The pages show what is stored when they are opened again.
local other = phone:open_settings()
other:settle()
for _, entry in ipairs(settings) do
  P.go(other, entry[1])
  local value = entry[4] and entry[#entry][1] or true
  expect_eq(P.row(other, entry[2]).value, value, entry[3] .. ": shown after another start")
  for _ = 1, #entry[1] do P.back(other) end
end
