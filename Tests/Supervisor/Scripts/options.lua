-- What boot is told shows on the device.
local function phone_with(options)
  options.extension = false
  return boot(options)
end
local list = { { id = "x.one", name = "Eins", badge = 3 }, { id = "x.two", name = "Zwei", running = true },
  { id = "x.three", name = "Drei", running = true }, { id = "x.four", name = "Vier", folder = "Social" } }
local phone = phone_with { apps = list }
expect_eq(phone:switcher(), { "x.two", "x.three" }, "running applications, most recent first, as listed")
expect(phone:find { inside = phone:icon("x.one"), class = "SBIconBadgeView" }, "a badge of the list is drawn")
expect(phone:find { text = "Social" }, "the folder stands on the home screen")
expect_eq(phone:foreground(), nil, "nothing is in front")
phone:run("x.one")
phone:settle()
expect_eq(phone:foreground(), "x.one", "run brings to the front")
expect_eq(phone:switcher()[1], "x.one", "and to the front of the switcher")

phone = phone_with { apps = { { id = "x.film", status_bar = false }, { id = "x.text" } }, passcode = true }
local function shows()
  phone:settle()
  return phone:find { window = "statusbar", class = "UIStatusBar", visible = true } ~= nil
end
for _, step in ipairs { { "home", true, function() end }, { "a film", false, function() phone:run("x.film") end },
  { "a text", true, function() phone:run("x.text") end }, { "a film again", false, function() phone:run("x.film") end },
  { "the switcher over it", true, function() phone:home_twice() end },
  { "the film once more", false, function() phone:home_twice() end },
  { "the lock screen over it", true, function() phone:lock() phone:lock() end },
  { "unlocked", false, function() phone:unlock() end }, { "left", true, function() phone:home() end } } do
  step[3]()
  expect_eq(shows(), step[2], "the status bar shows: " .. step[1])
end

expect_eq(#phone_with { apps = {} }:all { class = "SBIconView", visible = true }, 0, "no applications, no icons")
local default = phone_with { language = "it" }
expect(default:find { text = "Impostazioni" }, "names are in the device's language")
expect(default:icon("com.apple.mobilemail") and default:icon("com.apple.Preferences"), "the usual applications are there")

expect_eq(#phone_with { missing_files = { "/Library/none.png" } }:events("warning"), 1, "a path without a file is noticed")
expect_eq(#phone_with { hide_classes = { "NoSuchClass" } }:events("warning"), 1, "a class that is not there too")
expect_eq(#phone_with { hide_classes = { "_UIBackdropView" } }:all { class = "_UIBackdropView" }, 0, "a hidden class is absent")
