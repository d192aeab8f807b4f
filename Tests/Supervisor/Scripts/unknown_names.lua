-- A name that is wrong is an error that names the right one; nothing is ignored.
local phone = boot { extension = false }
local view = phone:find { window = "home" }
local function refused(what, part, ...)
  local held, problem = pcall(...)
  expect(not held, what .. " is refused")
  expect(not held and tostring(problem):find(part, 1, true), what .. ": " .. tostring(problem))
end
local cases = {
  { "a method", "did you mean 'indicator'?", function() phone:indicater() end },
  { "a field of the phone", "did you mean 'events'?", function() return phone.event end },
  { "setting a field of the phone", "no field", function() phone.x = 1 end },
  { "a field of a view", "did you mean 'text_color'?", function() return view.textcolor end },
  { "changing a view", "snapshot", function() view.text = "x" end },
  { "a field of a rectangle", "has no field 'width'", function() return view.screen.width end },
  { "a field of an event", "did you mean 'text'?", function() phone:respring(); return phone:events()[1].txt end },
  { "a field of the indicator", "did you mean 'alpha'?", function() return phone:indicator().alhpa end },
  { "a field of the counters", "did you mean 'timers'?", function() return phone:counters().timer end },
  { "a criterion", "did you mean 'visible'?", function() phone:find { visibel = true } end },
  { "a window", "did you mean 'overlay'?", function() phone:find { window = "overlays" } end },
  { "a window to dump", "did you mean 'home'?", function() phone:dump("hone") end },
  { "a kind of event", "did you mean 'badge_set'?", function() phone:events("badgeset") end },
  { "an application", "did you mean 'com.apple.mobilemail'?", function() phone:badge("com.apple.mobilemial", 1) end },
  { "an argument too many", "takes at most 1 argument", function() phone:tap(1, 2) end },
  { "no element", "not nil", function() phone:activate() end },
  { "settling under a finger", "finger 1 is down", function() phone:down{ 100, 500 } phone:settle() end },
  { "a missing colon", "phone:method", function() phone.wait(1) end },
  { "a point that is none", "a view or a point {x, y}", function() phone:tap { 1 } end },
  { "a time that is none", "the number of seconds must be", function() phone:wait("1s") end },
  { "time running backwards", "zero or more", function() phone:wait(-1) end },
  { "endless time", "finite", function() phone:wait(math.huge) end },
  { "half a badge", "a whole number", function() phone:badge("com.apple.mobilemail", 1.5) end },
  { "a negative badge", "negative", function() phone:badge("com.apple.mobilemail", -1) end },
  { "an unknown message", "has no method 'fly'", function() phone:call("fly") end },
  { "a message without its argument", "takes 1 argument, not 0", function() phone:call("valueForKey:") end },
  { "an aid", "did you mean 'voiceover'?", function() phone:aid("voiceOwer", true) end },
  { "an aid that is a word", "must be true or false", function() phone:aid("bold_text", "yes") end },
  { "a size of text", "did you mean 'XXL'?", function() phone:aid("text_size", "XXLL") end },
  { "a size to boot with", "there are XS, S", function() boot { text_size = "large" } end },
  { "an element that is a view", "expected an element", function() phone:activate(view) end },
  { "a field of an element", "did you mean 'traits'?", function() return phone:spoken()[1].trait end },
  { "an action", "nor any other", function() phone:act(phone:spoken()[1], "Clear") end },
  { "an adjustment", "not adjustable", function() phone:adjust(phone:spoken()[1], "up") end },
  { "a direction", "did you mean 'left'?", function() phone:scroll_page("lft") end },
  { "a view of another phone", "another phone", function() boot { extension = false }:tap(view) end },
  { "a filter", "did you mean 'device'?", function() each_profile(print, { devices = "iPad 2" }) end },
  { "a filter that leaves nothing", "leaves no device", function() each_profile(print, { device = "iPad 9" }) end },
}
phone:wait(0.1, nil, nil)
for _, case in ipairs(cases) do refused(case[1], case[2], case[3]) end
