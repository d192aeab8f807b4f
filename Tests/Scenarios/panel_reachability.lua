-- Reachability brings the panel down to the thumb and back up, unless the settings place it; the question grows to the
-- side that stays.
local P = require("panel")
local function pulled(phone, on)
  phone:reachability(on)
  phone:settle()
  phone:wait(0.3) -- the follower's next tick and its animation
  phone:settle()
end
-- On a screen of 375 x 667: 30 at the top, 667 - 110 - 37.5 at the bottom, (667 - 110) / 2 in the middle.
for _, case in ipairs{ { {}, 30, 519.5 }, { { position = "middle" }, 30, 519.5 },
  { { rech = true, position = "middle" }, 278.5, 278.5, 223.5 },
  { { rech = true, position = "bottom" }, 519.5, 519.5 } } do
  local what = (case[1].rech and "placed " or "not placed ") .. (case[1].position or "")
  local phone = P.boot(case[1], { device = "iPhone 6" })
  P.open(phone)
  local function y() return P.panel(phone).y end
  expect_near(y(), case[2], 0.01, what .. ": at first")
  local shown = P.top(phone, P.tag.bubble).alpha
  pulled(phone, true)
  expect_near(y(), case[3], 0.01, what .. ": with the screen pulled down")
  expect_eq(P.top(phone, P.tag.bubble).alpha, 0, what .. ": without the bubble")
  local screen = P.panel(phone).screen
  expect(screen.y + screen.h <= 667, what .. ": on the screen")
  P.long_press(phone, P.items(phone)[1])
  expect_near(y(), case[4] or case[3] - 110, 0.01, what .. ": asked")
  phone:tap(P.part(phone, P.tag.cancel))
  phone:settle()
  expect_near(y(), case[3], 0.01, what .. ": and back")
  pulled(phone, false)
  expect_near(y(), case[2], 0.01, what .. ": up again")
  expect_eq(P.top(phone, P.tag.bubble).alpha, shown, what .. ": with the bubble as it was")
  P.close(phone)

  -- Opened while the screen is down already.
  pulled(phone, true)
  phone:activator()
  phone:settle()
  expect_near(y(), case[3], 0.01, what .. ": opened with the screen pulled down")
  phone:tap(P.items(phone)[1])
  phone:settle()
  P.closed(phone)
  expect_eq(phone:foreground(), P.app(3), what .. ": an application opens from there")
  P.no_harm(phone)
end

-- On its side, with the setting on and the panel at the top: it stays by the indicator, on the screen.
for _, orientation in ipairs{ 3, 4 } do
  local phone = P.boot({ rech = true }, { device = "iPhone 6", ios = "8.1" })
  phone:rotate(orientation)
  phone:settle()
  pulled(phone, true)
  P.press_indicator(phone)
  phone:settle()
  phone:wait(0.5) -- the follower has placed it
  local panel = P.panel(phone)
  expect(panel.x >= 0 and panel.x + panel.w <= 667, ("turned to %d: at %g, on the screen"):format(orientation, panel.x))
  phone:activator()
  phone:settle()
  P.closed(phone)
  P.no_harm(phone)
end
