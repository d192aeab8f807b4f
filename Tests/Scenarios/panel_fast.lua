-- With `fast` everything takes a quarter of the time, but for the corners, which keep theirs.
local P = require("panel")
local function longest(view, key)
  local most = 0
  for _, animation in ipairs(view.animations) do
    if animation.keypath:find(key) then most = math.max(most, animation.duration) end
  end
  return most
end
for _, case in ipairs{ { false, 1 }, { true, 0.25 } } do
  local fast, share = case[1], case[2]
  local what = fast and "fast" or "slow"
  local phone = P.boot{ fast = fast }
  P.press_indicator(phone)
  local panel = P.panel(phone)
  expect_near(longest(panel, "bounds"), 0.5 * share, 0.001, what .. ": opening")
  expect_near(longest(P.overlay(phone), "backgroundColor"), 0.5 * share, 0.001, what .. ": dimming")
  expect_near(longest(panel, "cornerRadius"), 0.5, 0.001, what .. ": the corners' own time")
  phone:settle()
  P.long_press(phone, P.items(phone)[1])
  phone:tap(P.part(phone, P.tag.cancel))
  expect_near(longest(P.panel(phone), "bounds"), 0.4 * share, 0.001, what .. ": shrinking")
  phone:settle()
  P.swipe_down(phone, P.items(phone)[1])
  local lifted = phone:now()
  phone:settle()
  -- off the strip, collapse, close up
  local cleared = phone:events("badge_set")
  expect_near(cleared[#cleared].t - lifted, (0.2 + 0.3 + 0.3) * share, 0.04, what .. ": taking one off")
  phone:tap(P.outside(phone))
  expect_near(longest(P.panel(phone), "bounds"), 0.5 * share, 0.001, what .. ": closing")
  expect_near(longest(P.panel(phone), "cornerRadius"), 0.5, 0.001, what .. ": the corners' own time again")
  phone:settle()
  P.closed(phone)
end
