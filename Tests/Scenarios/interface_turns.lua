-- The device is turned, and the screen let down: home screen, status bar and application go along, seen upright; and
-- what of them does so where only some do.
for _, case in ipairs { { "iPhone 4S", "7.1" }, { "iPhone 6", "8.1" }, { "iPad Air 2", "8.1" } } do
  local phone = boot { device = case[1], ios = case[2], extension = false, interface_turns = true }
  local bar = phone:find { window = "statusbar", class = "UIStatusBar" }
  local width, height = bar.screen.w, phone:find { window = "home", class = "UIWindow" }.screen.h
  for _, o in ipairs { 3, 4, 2, 1 } do
    local what = case[1] .. " turned to " .. o .. ": "
    local w, h = width, height
    if o > 2 then w, h = h, w end
    phone:rotate(o)
    phone:settle()
    local screen = phone:again(bar).screen
    expect_eq({ screen.x, screen.y, screen.w, screen.h }, { 0, 0, w, 20 }, what .. "the status bar lies along the top")
    local window = phone:find { window = "home", class = "UIWindow" }.screen
    expect_eq({ window.x, window.y, window.w, window.h }, { 0, 0, w, h }, what .. "the home screen fills the screen")
    local icons = phone:all { window = "home", class = "SBIconView", visible = true }
    expect(#icons > 10, what .. "icons show")
    for _, icon in ipairs(icons) do
      local s = icon.screen
      expect(s.x >= 0 and s.y >= 0 and s.x + s.w <= w and s.y + s.h <= h, what .. "each lies on the screen")
    end
  end
  -- An application opened on its side fills the screen, and a tap lands where it is seen.
  phone:rotate(3)
  phone:settle()
  phone:tap(phone:icon("com.apple.mobilecal"))
  phone:settle()
  expect_eq(phone:foreground(), "com.apple.mobilecal", case[1] .. ": the icon takes its tap")
  local app = phone:find { window = "app", class = "UIWindow" }.screen
  expect_near(app.w, height, 0.01, case[1] .. ": the application is as wide as the screen is high")
  expect_near(app.x, 0, 0.01, case[1] .. ": and begins at its edge")
end

-- What is upright stays where it was; an application that turns fills the screen on its side, and the icons under it
-- wait where they were.
local phone = boot { device = "iPhone 6", extension = false }
local bar = phone:find { window = "statusbar", class = "UIStatusBar" }
local function width() return phone:again(bar).screen.w end
local page = phone:icon("com.apple.mobilecal").screen
phone:rotate(3)
phone:settle()
expect_eq(width(), 375, "the status bar stays upright on the home screen")
expect_eq(phone:icon("com.apple.mobilecal").screen, page, "and so do the icons")
phone:tap(phone:icon("com.apple.mobilecal"))
phone:settle()
local app = phone:find { window = "app", class = "UIWindow" }.screen
expect_eq({ app.x, app.y, app.w, app.h, width() }, { 0, 0, 667, 375, 667 }, "an application turns, the bar with it")
phone:rotate(2)
phone:settle()
expect_eq(width(), 667, "but not upside down")
phone:shot("application-turned")
phone:home()
phone:filmstrip("home-from-its-side", 0.5, 6)
phone:settle()
expect_eq(width(), 375, "left, it leaves the screen upright")
expect_eq(phone:icon("com.apple.mobilecal").screen, page, "as it was")
phone:rotate(4)
phone:run("com.apple.mobilecal")
phone:settle()
expect_eq(width(), 667, "one that is opened on its side lies so")
phone:lock()
phone:lock()
phone:settle()
expect_eq(width(), 375, "the lock screen is upright")
phone:unlock()
phone:settle()
expect_eq(width(), 667, "and the application behind it is not")

phone = boot { device = "iPhone 6", extension = false }
local function top() return phone:find { window = "statusbar", class = "UIStatusBar" }.screen.y end
phone:reachability(true)
phone:settle()
expect_near(top(), 0.4 * 667, 0.01, "the status bar comes down")
phone:tap(phone:icon("com.apple.mobilecal"))
phone:settle()
expect_eq(phone:foreground(), "com.apple.mobilecal", "what came down takes touches there")
phone:reachability(false)
phone:settle()
expect_near(top(), 0, 0.01, "and goes back up")

phone = boot { device = "iPhone 5s", extension = false }
phone:reachability(true)
phone:settle()
expect_near(top(), 0, 0.01, "a small screen stays")
expect(#phone:events("warning") == 1, "with a word")
