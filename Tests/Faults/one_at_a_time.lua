-- The standard day with one thing missing or failing at a time: nothing ends, nothing unknown is called, and all goes on
-- that does not need the piece. Prints a row for each fault; fault_table.py names the faults and reads the rows.
--
-- Arguments: kind, device, version, language, which steps in Settings (all, looks or none), faults …
local S = require("standard")
local kind, device, ios, language, which = table.unpack(args, 1, 5)
local settings_file = "/var/mobile/Library/Preferences/org.quillhub.PendixSettings.plist"

-- "ENOSPC", "EIO rename", "ENOSPC open 2 1": the error, at which call, the first that fails, how many fail.
local function writes(text)
  local error_name, call, first, times = text:match("^(%u+) ?(%a*) ?(%d*) ?(%d*)$")
  return { path = settings_file, error = error_name, call = call ~= "" and call or nil, first = math.tointeger(first),
    times = math.tointeger(times) }
end
local options = {
  pair = function(names) return { hide_classes = { names:match("^([%w_]+)%+([%w_]+)$") } } end,
  class = function(name) return { hide_classes = { name }, color_badges = name:find("^ColorBadges") ~= nil } end,
  method = function(name) return { hide_methods = { name } } end,
  lookup = function(name) return { nil_methods = { name }, color_badges = name:find("^ColorBadges") ~= nil } end,
  file = function(name)
    local picture, list = name:match("^(.*)%.png in every scale$"), { name }
    if picture then list = { picture .. ".png", picture .. "@2x.png", picture .. "@3x.png" } end
    return { missing_files = list }
  end,
  write = function(name) return { fail_writes = { writes(name) } } end,
}

-- What no fault may take away.
local untouched = { ["the home screen works"] = true, ["nothing is left of the panel"] = true }

local wanted = {}
local function baseline(model, version, color_badges)
  local key = model .. version .. tostring(color_badges)
  if not wanted[key] then
    local o = { device = model, ios = version, language = language, color_badges = color_badges }
    local run = S.run(o, which)
    expect_eq(run.harm, {}, "nothing goes wrong without a fault")
    for _, name in ipairs(S.order(which)) do
      -- The tablet of these runs has no sensor and no Reachability, nor has iOS 7 the glyph and the other.
      local lacks = (model == "iPad 2" or version < "8") and (name:find("glyph of the finger") or name:find("Reachability"))
      if not lacks then expect(run.results[name], model .. ", without a fault: " .. name) end
    end
    wanted[key] = run.results
  end
  return wanted[key]
end

local function with_fault(fault, model, version)
  local o = options[kind](fault)
  o.device, o.ios, o.language = model, version, language
  local booted, run = pcall(S.run, o, which)
  if not booted then
    expect(tostring(run):find("statically", 1, true) ~= nil, fault .. ": " .. tostring(run))
    return nil
  end
  for _, event in ipairs(run.phone:events("warning")) do
    if event.text:find("^no method") then return run, true end
    expect(not event.text:find("^no class"), event.text)
    expect(not event.text:find("^no installed"), event.text)
  end
  return run
end

print("steps", table.concat(S.order(which), "; "))
for i = 6, #args do
  local fault, model, version = args[i], device, ios
  local run, absent = with_fault(fault, model, version)
  if absent then
    model, version = "iPhone 5s", "7.1"
    run, absent = with_fault(fault, model, version)
    expect(not absent, fault .. " is on no version")
  end
  if not run then
    print("row", fault, "needed")
  else
    expect_eq(run.harm, {}, fault .. ": nothing ends")
    local lost, good = {}, baseline(model, version, options[kind](fault).color_badges or false)
    for _, name in ipairs(S.order(which)) do
      local before, after = good[name], run.results[name]
      if tostring(before) ~= tostring(after) then lost[#lost + 1] = name end
    end
    for _, name in ipairs(lost) do
      expect(not untouched[name], fault .. ": " .. name)
    end
    print("row", fault, table.concat(lost, "; "))
  end
end
