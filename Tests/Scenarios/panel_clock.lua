-- The Clock's icon is a clock: its hands start at the time of day and turn, except behind page dots.
local P = require("panel")
local apps = { { id = P.clock, name = "Clock", badge = 1, running = true }, P.numbered(1)[1] }
local second, minute, hour = 1000, 1001, 1002
local function hand(phone, tag)
  local face = P.sub(phone, P.must(P.sub(phone, P.strip(phone), P.tag.clock), "the Clock has its tag"), P.tag.icon)
  local view = P.must(P.sub(phone, face, tag), "hand " .. tag)
  return view, view.animations[1]
end

-- The panel has opened 0.6 s after the time given, and starts the hands anew then. Degrees: six a second; six a minute
-- and a tenth of the seconds; thirty an hour and half of the minutes.
for _, case in ipairs{ { "2015-03-01 10:20:30", 180, 123, 310 }, { "2015-03-01 00:00:00", 0, 0, 0 },
  { "2015-03-01 12:00:05", 30, 0.5, 0 }, { "2015-03-01 23:59:58", 348, 359.8, 359.5 } } do
  local what = case[1] .. ": "
  local phone = P.boot({}, { clock = case[1], apps = apps })
  P.open(phone)
  for i, each in ipairs{ { second, 60 }, { minute, 3600 }, { hour, 8640 } } do
    local view, turn = hand(phone, each[1])
    P.must(turn, what .. "hand " .. each[1] .. " turns")
    expect_near(math.deg(turn.from), case[i + 1], 0.001, what .. "hand " .. each[1] .. " starts at the time")
    expect_near(math.deg(turn.to - turn.from), 360, 0.001, what .. "and goes all the way round")
    expect_eq({ turn.key, turn.keypath, turn.duration, turn.repeats },
      { "rotate", "transform.rotation.z", each[2], math.huge }, what .. "for ever")
    -- All turn around the middle of the icon, which is 60 wide.
    expect_near(view.y + view.h, 30, 0.01, what .. "its lower end is in the middle")
    expect_near(view.x + view.w / 2, 30, 0.01, what .. "from either side")
  end
  local red, black = hand(phone, second), hand(phone, minute)
  expect_eq({ red.background, red.w, red.h }, { "#ff0000ff", 1, 24 }, what .. "the second hand")
  expect_eq({ black.background, black.w }, { "#000000ff", 2 }, what .. "the minute hand")
  expect_near(hand(phone, hour).h, 15, 0.01, what .. "the hour hand, a quarter of the face")
  -- A quarter of a minute on, the second hand has turned by a right angle: it points to the side.
  if case[2] == 180 then
    phone:wait(15)
    local screen = hand(phone, second).screen
    expect(screen.w > screen.h, what .. "the second hand is seen to turn")
  end
  P.close(phone)
  P.no_harm(phone)
end

local phone = P.boot({ paging = true }, { apps = apps })
P.open(phone)
for _, tag in ipairs{ second, minute, hour } do
  local _, turn = hand(phone, tag)
  expect_eq(turn, nil, "behind page dots the hands stand still")
end
P.close(phone)
-- Nobody else has a clock.
phone = P.boot()
P.open(phone)
expect_eq(phone:find{ window = "overlay", tag = second }, nil, "other icons are no clocks")
