-- The Clock's icon is a clock: its hands show the time of day and turn; behind page dots they stay at the time of the
-- opening.
local P = require("panel")
local apps = { { id = P.clock, name = "Clock", badge = 1, running = true }, P.numbered(1)[1] }
local second, minute, hour = 1000, 1001, 1002
local function hand(phone, tag)
  local face = P.sub(phone, P.must(P.sub(phone, P.strip(phone), P.tag.clock), "the Clock has its tag"), P.tag.icon)
  local view = P.must(P.sub(phone, face, tag), "hand " .. tag)
  return view, view.animations[1], face
end
-- Where a hand lies that is so wide and long and points so many degrees from twelve, its end in the middle of the face.
local function points(view, face, width, length, degrees, what)
  local sine, cosine = math.sin(math.rad(degrees)), math.cos(math.rad(degrees))
  local x, y = {}, {}
  for _, corner in ipairs{ { -width / 2, 0 }, { width / 2, 0 }, { -width / 2, -length }, { width / 2, -length } } do
    x[#x + 1] = corner[1] * cosine - corner[2] * sine + face.w / 2
    y[#y + 1] = corner[1] * sine + corner[2] * cosine + face.h / 2
  end
  table.sort(x)
  table.sort(y)
  P.near(view, { x[1], y[1], x[4] - x[1], y[4] - y[1] }, what)
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
    expect_eq(view.background, each[1] == second and "#ff0000ff" or "#000000ff", what .. "colour")
  end
  -- A quarter of a minute on, the second hand has turned by a right angle: it points to the side.
  if case[2] == 180 then
    phone:wait(15)
    local screen = hand(phone, second).screen
    expect(screen.w > screen.h, what .. "the second hand is seen to turn")
  end
  P.close(phone)
  P.no_harm(phone)
end

-- Drawn they show the time already: the second hand is half a face long but for 6, the hour hand a quarter. On a card
-- the card is the face: 60 by 106.5, 76 by 101 1/3.
for _, case in ipairs{ { "icon", {}, "iPhone 5s", 60, 60 }, { "paged", { paging = true }, "iPhone 5s", 60, 60 },
  { "card", { ca = true }, "iPhone 5s", 60, 106.5 }, { "paged card", { ca = true, paging = true }, "iPad Air 2", 76, 101.33 },
  { "behind a lock", { paging = true, pass = true, password = "1234" }, "iPhone 5s", 60, 60 } } do
  local what, width = case[1], case[4]
  local phone = P.boot(case[2], { device = case[3], apps = apps })
  P.open(phone)
  local red, turn, face = hand(phone, second)
  expect_near(face.w, width, 0.01, what .. ": width of the face")
  expect_near(face.h, case[5], 0.01, what .. ": height")
  points(red, face, 1, width / 2 - 6, 180, what .. ": 30 seconds")
  points(hand(phone, minute), face, 2, width / 2 - 9, 123, what .. ": 20 minutes and a half")
  points(hand(phone, hour), face, 2, width / 4, 310, what .. ": 20 past 10")
  expect_eq(turn == nil, case[2].paging or false, what .. ": behind page dots the hands stand still")
end
-- Nobody else has a clock.
local phone = P.boot()
P.open(phone)
expect_eq(phone:find{ window = "overlay", tag = second }, nil, "other icons are no clocks")
