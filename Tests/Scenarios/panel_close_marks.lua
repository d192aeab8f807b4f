-- With `close` on a long press brings up close marks, which take one application off; the next long press asks
-- whether to take all. In running mode that quits them, in the way of the system's version.
local P = require("panel")
local function marks(phone)
  local list = {}
  for i, item in ipairs(P.items(phone)) do list[i] = P.sub(phone, item, P.tag.mark) end
  return list
end

for _, ios in ipairs{ "7.1", "8.1" } do
  local how = ios == "7.1" and "signal" or "switcher"
  local phone = P.boot({ badge = true, close = true },
    { ios = ios, apps = P.numbered(4, { running = true, badge = 0 }) })
  P.open(phone)
  expect_eq(P.ids(phone), P.names(1, 4), ios .. ": the most recent application comes first")
  local before = P.items(phone)
  for _, item in ipairs(before) do
    expect(P.sub(phone, item, P.tag.badge).hidden, ios .. ": without a count no badge")
    expect_eq(item.gestures, { "UITapGestureRecognizer", "UILongPressGestureRecognizer" }, ios .. ": and no drag")
  end
  phone:drag(before[1], 0, 80, 0.3)
  phone:settle()
  expect_eq(#P.items(phone), 4, ios .. ": a drag takes nothing off")

  P.long_press(phone, before[1])
  -- Badges are 24 high: marks of 20, grown around (4, 4).
  for _, mark in ipairs(marks(phone)) do
    P.near(mark, { -6, -6, 20, 20 }, ios .. ": mark")
    expect_eq(mark.corner_radius, 10, ios .. ": round")
  end
  expect_eq(P.part(phone, P.tag.text), nil, ios .. ": the first press asks nothing")
  phone:tap(P.items(phone)[3])
  phone:settle()
  expect_eq(#P.since(phone, 0, "launch"), 0, ios .. ": taps on icons do nothing while marks are shown")

  local mark = P.mark(phone)
  phone:tap(P.sub(phone, P.items(phone)[2], P.tag.mark))
  phone:settle()
  expect_eq(P.ids(phone), { P.app(1), P.app(3), P.app(4) }, ios .. ": a tap on a mark takes that one off")
  for i, item in ipairs(P.items(phone)) do P.near(item, P.frame(before[i]), ios .. ": place " .. i) end
  local quit = P.since(phone, mark, "quit")
  expect_eq({ #quit, quit[1].id, quit[1].how }, { 1, P.app(2), how }, ios .. ": and quits it alone")
  local signals = P.since(phone, mark, "signal")
  expect_eq({ #signals, signals[1] and signals[1].number }, ios == "7.1" and { 1, 15 } or { 0 }, ios .. ": signals")
  expect_eq(#P.since(phone, mark, "badge_set"), 0, ios .. ": no badge is touched")
  -- Before 8.0 the switcher keeps what a signal ended; the panel does not.
  if ios == "8.1" then expect_eq(phone:switcher(), { P.app(1), P.app(3), P.app(4) }, "it has left the switcher") end

  mark = P.mark(phone)
  P.long_press(phone, P.items(phone)[1])
  for _, each in ipairs(marks(phone)) do P.near(each, { 4, 4, 0, 0 }, ios .. ": the second press hides the marks") end
  expect_eq(P.part(phone, P.tag.text).text, "Close all apps?", ios .. ": and asks")
  phone:tap(P.part(phone, P.tag.ok))
  phone:settle()
  local ids = {}
  for i, event in ipairs(P.since(phone, mark, "quit")) do ids[i] = event.id end
  table.sort(ids)
  expect_eq(ids, { P.app(1), P.app(3), P.app(4) }, ios .. ": yes quits all, each once")
  expect_eq(#P.items(phone), 0, ios .. ": nothing is left")
  expect_eq(P.empty_text(phone).text, "No Running Apps", ios .. ": and the panel says so")
  expect_eq(P.empty_text(phone).alpha, 1, ios .. ": visibly")
  if ios == "8.1" then expect_eq(phone:switcher(), {}, "nor in the switcher") end
  expect_eq(P.panel(phone).h, 110, ios .. ": the panel has its height again")
  P.close(phone)
  P.open(phone)
  expect_eq(#P.items(phone), 0, ios .. ": and nothing comes back")
  P.no_harm(phone)
end

-- In badge mode a mark clears a badge; whatever was begun, the next opening starts without marks.
local phone = P.boot{ close = true }
P.open(phone)
P.long_press(phone, P.items(phone)[2])
local mark = P.mark(phone)
phone:tap(P.sub(phone, P.items(phone)[2], P.tag.mark))
phone:wait(0.05)
phone:settle()
expect_eq(P.ids(phone), { P.app(3), P.app(1) }, "the mark takes it off")
expect_eq(#P.since(phone, mark, "quit"), 0, "nothing is quit in badge mode")
expect_eq(P.since(phone, mark, "badge_set")[1].id, P.app(2), "its badge is cleared")
P.close(phone)
P.open(phone)
for _, each in ipairs(marks(phone)) do expect_eq(each.w, 0, "no marks after opening again") end
phone:tap(P.items(phone)[1])
phone:settle()
expect_eq(phone:foreground(), P.app(3), "and taps open applications")

-- On their way the marks turn from squares into discs; the home button lets them shrink in the time in which they grew.
do
  phone = P.boot{ close = true }
  P.open(phone)
  local function moving(what)
    local turning, lasting = nil, 0
    for _, animation in ipairs(marks(phone)[1].animations) do
      if animation.keypath == "cornerRadius" then turning = { animation.from, animation.to }
      else lasting = math.max(lasting, animation.duration) end
    end
    expect_near(lasting, 0.4, 0.001, what .. ": how long")
    return turning
  end
  phone:down(P.items(phone)[1])
  for _ = 1, 90 do
    if marks(phone)[1].w == 0 then phone:wait(1 / 60) end
  end
  expect_eq(moving("growing"), { 0, 10 }, "the corners of a mark that grows")
  phone:up()
  phone:settle()
  phone:home()
  expect_eq(moving("shrinking"), { 10, 0 }, "and of one that shrinks")
  phone:settle()
end

-- Two taps on one mark take one application off.
phone = P.boot({ close = true }, { apps = P.numbered(5) })
P.open(phone)
P.long_press(phone, P.items(phone)[1])
mark = P.mark(phone)
local target = P.sub(phone, P.items(phone)[1], P.tag.mark).screen
local point = { target.x + 10, target.y + 10 }
phone:tap(point)
phone:tap(point)
phone:settle()
expect_eq(#P.since(phone, mark, "badge_set"), 1, "two quick taps on one mark close one application")
expect_eq(P.ids(phone), P.names(4, 1), "and only that")
P.no_harm(phone)

-- All that is seen of a mark takes touches, and ten points around it where nothing else lies. In points from the
-- item's corner the mark reaches from -6 to 14, the badge of the item before from -35 (a gap of 19) to -11, and down
-- to 16.
local function touched(place, dx, dy, badge)
  phone = P.boot({ close = true }, { apps = P.numbered(3, { badge = badge }) })
  P.open(phone)
  P.long_press(phone, P.items(phone)[1])
  local item, before = P.items(phone)[place], P.mark(phone)
  phone:tap{ item.screen.x + dx, item.screen.y + dy }
  phone:settle()
  local cleared = P.since(phone, before, "badge_set")
  expect_eq(#P.since(phone, before, "launch"), 0, "no tap opens anything")
  P.must(P.panel(phone), "nor closes the panel")
  return cleared[1] and cleared[1].id == item.name and #cleared == 1, #cleared
end
for _, case in ipairs{
  -- The mark itself: its corners and the middles of its edges.
  { 2, -5.9, -5.9, true }, { 2, 4, -5.9, true }, { 2, 13.9, -5.9, true }, { 2, -5.9, 4, true }, { 2, 13.9, 4, true },
  { 2, -5.9, 13.9, true }, { 2, 4, 13.9, true }, { 2, 13.9, 13.9, true }, { 3, -5.9, -5.9, true },
  { 1, -5.9, -5.9, true },
  -- Around it: free, and beyond its reach.
  { 1, -15.9, 4, true }, { 1, -15.9, -15.9, true }, { 2, 4, -15.9, true }, { 2, -9, 4, true }, { 3, -15.9, 23, true },
  { 1, -16.1, 4, false }, { 2, 4, -16.1, false }, { 1, -10, 24.1, false },
  -- Around it, but on the item's own icon, or on the badge of the one before.
  { 2, 16, 4, false }, { 2, 4, 16, false }, { 2, -12, 4, false }, { 2, -12, 15, false },
  -- A wide badge of the one before lies under the mark.
  { 2, -5.9, 4, true, 1000 }, { 2, -7, 4, false, 1000 },
} do
  local what = ("item %d, %g, %g"):format(case[1], case[2], case[3])
  local hit, cleared = touched(case[1], case[2], case[3], case[5])
  expect_eq(hit or false, case[4], what .. ": closes its application")
  expect_eq(cleared, case[4] and 1 or 0, what .. ": and no other")
end
-- Before and after the marks are shown nothing is to be touched.
phone = P.boot{ close = true }
P.open(phone)
mark = P.mark(phone)
local beside = P.items(phone)[1].screen
phone:tap{ beside.x - 5, beside.y }
P.long_press(phone, P.items(phone)[1])
phone:home()
phone:settle()
phone:tap{ beside.x - 5, beside.y }
phone:settle()
expect_eq({ #P.since(phone, mark, "badge_set"), #P.items(phone) }, { 0, 3 }, "without marks nobody is closed")
P.no_harm(phone)
