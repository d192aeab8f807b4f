-- The panel turns with the device, stays under the indicator and on the screen, and works on its side as it does
-- upright.
local P = require("panel")
local apps = P.numbered(4)
apps[4].badge = 0 -- the one in front
local opposite = { 2, 1, 4, 3 }
-- Where the panel stands with the indicator at x and 14 wide: centred upright; on the side its right end 41 points
-- beyond the indicator's x.
local function attached(phone, screen, orientation, what)
  local panel, indicator = P.panel(phone).screen, phone:indicator()
  local width, turned = 0.8 * screen[1], orientation > 2
  expect_near(panel.w, width, 0.01, what .. ": width")
  expect_near(panel.x, turned and indicator.x + 41 - width or screen[1] / 10, 0.01, what .. ": x")
  expect_near(panel.y, 30, 0.01, what .. ": y")
  expect(panel.x >= 0 and panel.x + panel.w <= (turned and screen[2] or screen[1]), what .. ": on the screen")
  local logo, bubble = P.top(phone, P.tag.logo), P.top(phone, P.tag.bubble)
  for _, key in ipairs{ "x", "y", "w", "h" } do
    expect_near(logo.screen[key], indicator[key], 0.01, what .. ": the logo lies on the indicator: " .. key)
  end
  expect_near(bubble.screen.x + bubble.screen.w / 2, indicator.x + 7, 0.01, what .. ": and the bubble behind it")
  expect_near(bubble.screen.y, indicator.y + 5, 0.01, what .. ": from its top")
  expect_eq(logo.alpha, 1, what .. ": visible")
end

for _, case in ipairs{ { "iPhone 5s", "7.1", { 320, 568 }, true }, { "iPhone 5s", "8.1", { 320, 568 }, true },
  { "iPhone 6 Plus", "8.1", { 414, 736 } }, { "iPad Air", "7.1", { 768, 1024 } },
  { "iPad Air 2", "8.1", { 768, 1024 } } } do
  local what, screen = case[1] .. " " .. case[2], case[3]
  -- Phones as if theirs turned in every direction; tablets' do.
  local phone = P.boot({}, { device = case[1], ios = case[2], apps = apps, interface_turns = case[3][1] < 700 or nil })
  if case[4] then phone:run(P.app(4)) end
  P.open(phone)
  local last, turns = 1, 0
  for _, orientation in ipairs{ 3, 4, 2, 1, 4, 3, 1, 2, 3, 2, 4, 1 } do
    local began = phone:now()
    phone:rotate(orientation)
    turns = turns + 1
    local log = phone:log()
    expect_eq(log[#log], ("<Pendix> Orientation changed from %d to %d"):format(last, orientation), what .. ": log")
    local longest = 0
    for _, animation in ipairs(P.overlay(phone).animations) do longest = math.max(longest, animation.duration) end
    expect_near(longest, opposite[last] == orientation and 0.7 or 0.3, 0.001, what .. ": a half turn takes longer")
    phone:wait(0.2)
    phone:settle()
    phone:wait(0.3)
    attached(phone, screen, orientation, what .. ", turned to " .. orientation)
    phone:rotate(orientation)
    expect_eq(P.logged(phone, "Orientation changed"), turns, what .. ": the same way again is no turn")
    last = orientation
  end
  -- On its side it opens, is acted on and closes.
  phone:rotate(3)
  phone:settle()
  phone:wait(0.3)
  P.swipe_down(phone, P.items(phone)[2])
  phone:settle()
  expect_eq(P.ids(phone), { P.app(3), P.app(1) }, what .. ", on its side: a swipe takes one off")
  P.long_press(phone, P.items(phone)[1])
  local low = P.panel(phone).screen
  expect_near(low.y, 30, 0.01, what .. ", on its side: asked, it grows downwards")
  phone:tap(P.part(phone, P.tag.cancel))
  phone:settle()
  phone:tap{ 10, screen[1] - 20 }
  phone:settle()
  P.closed(phone)
  P.open(phone)
  attached(phone, screen, 3, what .. ", opened on its side")
  phone:tap{ screen[2] - 10, screen[1] - 20 }
  phone:settle()
  P.closed(phone)
  -- The home screen starts anew on its side.
  phone:respring()
  phone:settle()
  if case[4] then phone:run(P.app(4)) end
  phone:settle()
  P.open(phone)
  attached(phone, screen, 3, what .. ", started on its side")
  phone:tap{ screen[2] - 10, screen[1] - 20 }
  phone:settle()
  P.closed(phone)
  -- The clear view reaches every corner of the turned screen, and the upright one after turning back.
  phone:rotate(1)
  phone:settle()
  P.open(phone)
  attached(phone, screen, 1, what .. ", opened upright again")
  phone:tap{ screen[1] - 3, screen[2] - 3 }
  phone:settle()
  P.closed(phone)
  P.no_harm(phone)
end

-- In the middle and at the bottom the same holds of the turned screen: (568 - 256) / 2, (320 - 110) / 2,
-- 320 - 110 - 25.
for _, case in ipairs{ { "middle", { 156, 105 }, { 32, 229 } }, { "bottom", { 156, 185 }, { 32, 426 } } } do
  local phone = P.boot({ rech = true, position = case[1] }, { apps = apps })
  phone:run(P.app(4))
  P.open(phone)
  for _, orientation in ipairs{ 4, 1 } do
    phone:rotate(orientation)
    phone:settle()
    phone:wait(0.5)
    local panel, place = P.panel(phone).screen, case[orientation == 4 and 2 or 3]
    expect_near(panel.x, place[1], 0.01, case[1] .. ", turned to " .. orientation .. ": x")
    expect_near(panel.y, place[2], 0.01, case[1] .. ", turned to " .. orientation .. ": y")
    P.long_press(phone, P.items(phone)[1])
    local grown = P.panel(phone).screen
    local y = case[1] == "middle" and ((orientation == 4 and 320 or 568) - 220) / 2 or place[2] - 110
    expect_near(grown.y, y, 0.01, case[1] .. ", turned to " .. orientation .. ", asked: y")
    phone:tap(P.part(phone, P.tag.cancel))
    phone:settle()
    expect_near(P.panel(phone).screen.y, place[2], 0.01, case[1] .. ", turned to " .. orientation .. ": back")
  end
  P.no_harm(phone)
end
-- Turning while it opens and while it closes.
for _, after in ipairs{ 0.1, 0.3 } do
  local phone = P.boot({}, { device = "iPad Air 2" })
  P.press_indicator(phone)
  phone:wait(after)
  phone:rotate(4)
  phone:settle()
  phone:wait(0.5)
  attached(phone, { 768, 1024 }, 4, "turned " .. after .. " s into the opening")
  phone:tap{ 10, 700 }
  phone:wait(after)
  phone:rotate(1)
  phone:settle()
  P.closed(phone)
  P.no_harm(phone)
end
-- A phone whose home screen stays upright: the panel turns to the eye, the logo stays on the indicator, and what is
-- touched is what is seen.
for _, ios in ipairs{ "7.1", "8.1" } do
  local phone = P.boot({}, { ios = ios })
  for _, orientation in ipairs{ 3, 4, 2, 1 } do
    local what = ios .. ", upright, the device turned to " .. orientation
    local at = phone:indicator()
    phone:rotate(orientation)
    phone:settle()
    local i = phone:indicator()
    expect_eq({ i.x, i.y, i.w, i.h }, { at.x, at.y, at.w, at.h }, what .. ": the indicator stays")
    P.open(phone)
    local logo, panel = P.top(phone, P.tag.logo), P.panel(phone).screen
    for _, key in ipairs{ "x", "y", "w", "h" } do
      expect_near(logo.screen[key], at[key], 0.01, what .. ": the logo lies on it: " .. key)
    end
    local sides = orientation > 2 and { 110, 256 } or { 256, 110 }
    expect_near(panel.w, sides[1], 0.01, what .. ": the panel lies along the upper edge as it is held: width")
    expect_near(panel.h, sides[2], 0.01, what .. ": and height")
    expect(panel.x >= 0 and panel.y >= 0 and panel.x + panel.w <= 320 and panel.y + panel.h <= 568, what .. ": on the screen")
    phone:activator()
    phone:wait(0.49)
    local point = P.panel(phone).screen
    expect(math.abs(point.x - at.x - at.w / 2) < at.w and math.abs(point.y - at.y - at.h / 2) < at.h,
      what .. ": it shrinks into the indicator")
    phone:settle()
    P.open(phone)
    phone:tap(P.items(phone)[2])
    phone:settle()
    expect_eq(phone:foreground(), P.app(2), what .. ": an item opens its application")
    phone:home()
    phone:settle()
  end
  P.no_harm(phone)
end
