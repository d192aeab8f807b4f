-- A short way up or down is a drag and no tap, whatever is under way beside it; several fingers drag several items,
-- each its own; and a drag costs one look into the settings file.
local P = require("panel")
-- A finger's first ten points only make a drag of it; more than 45 would be no tap anyway.
local function nudge(phone, item, rest)
  P.slide(phone, item, 0, 24, 0.1)
  phone:wait(rest)
  phone:up()
end

for _, case in ipairs{
  { "while the last one snaps back", function(phone, items)
    for _, pause in ipairs{ 0.05, 0.2, 0.3, 0.3, 0.45, 0 } do
      nudge(phone, items[2], 0.2)
      phone:wait(pause)
    end
  end },
  { "that catches it on its way back", function(phone, items)
    nudge(phone, items[2], 0)
    phone:wait(0.1)
    P.slide(phone, items[2], 0, 11, 1 / 60)
    phone:up()
  end },
  { "while another item snaps back", function(phone, items)
    nudge(phone, items[1], 0)
    phone:wait(0.3)
    nudge(phone, items[2], 0.2)
  end },
  { "beside a fling", function(phone, items)
    P.slide(phone, items[1], 0, 75, 0.1, 1)
    phone:up(1)
    P.slide(phone, items[2], 0, 24, 0.1, 2)
    phone:wait(0.2)
    phone:up(2)
  end, 1 },
} do
  local what = "a short drag " .. case[1]
  local phone = P.boot()
  P.open(phone)
  local items, mark = P.items(phone), P.mark(phone)
  case[2](phone, items)
  phone:settle()
  expect_eq(#P.since(phone, mark, "launch"), 0, what .. ": nothing opens")
  P.must(P.panel(phone), what .. ": the panel stays")
  expect_eq(#P.since(phone, mark, "badge_set"), case[3] or 0, what .. ": only what was flung is cleared")
  expect_eq(#P.items(phone), 3 - (case[3] or 0), what .. ": and gone")
  for i, item in ipairs(P.items(phone)) do P.near(item, P.frame(items[i]), what .. ": at rest, place " .. i) end
  expect(P.strip(phone).scroll.enabled, what .. ": the strip scrolls")
  phone:tap(P.items(phone)[1])
  phone:settle()
  expect_eq(#P.since(phone, mark, "launch"), 1, what .. ": then taps work")
  P.no_harm(phone)
end

-- Two fingers drag two items, each its own way.
local phone = P.boot()
P.open(phone)
local before, mark = P.items(phone), P.mark(phone)
local function off_row(i) return P.item(phone, before[i].name).y - 18 end
P.slide(phone, before[1], 0, 36, 0.15, 1)
P.slide(phone, before[2], 0, -34, 0.15, 2)
expect_near(off_row(1), 24, 4, "the first item stays under the first finger")
expect_near(off_row(2), -22, 4, "the second under the second")
local first = P.middle(before[1])
P.slide_on(phone, { first[1], first[2] + 36 }, 0, 10, 0.1, 1)
expect_near(off_row(1), 34, 4, "the first goes on from where it was")
expect_near(off_row(2), -22, 4, "and takes nobody along")
phone:up(2)
expect_eq(P.strip(phone).scroll.enabled, false, "as long as one is dragged the strip does not scroll")
phone:up(1)
phone:settle()
for i, item in ipairs(P.items(phone)) do P.near(item, P.frame(before[i]), "both return, place " .. i) end
expect_eq(#P.since(phone, mark, "badge_set") + #P.since(phone, mark, "launch"), 0, "and nothing else happened")
P.no_harm(phone)

-- What a finger holds out of its row stays under it while another one's place is filled.
phone = P.boot()
P.open(phone)
before = P.items(phone)
P.slide(phone, before[3], 0, 34, 0.15, 2)
local held = P.item(phone, before[3].name).y
P.swipe_up(phone, before[1])
phone:wait(1)
expect_eq(#P.items(phone), 2, "one is gone")
P.near(P.item(phone, before[3].name), { before[2].x, held, 60, 79 }, "what is held moves up, but stays out of its row")
phone:up(2)
phone:settle()
P.near(P.item(phone, before[3].name), P.frame(before[2]), "into which it then falls")
P.no_harm(phone)

-- A panel that closes takes nothing off any more; opened again it takes taps at once, with the finger still down.
phone = P.boot()
P.open(phone)
mark = P.mark(phone)
P.slide(phone, P.items(phone)[1], 0, 75, 0.15, 1)
phone:home()
phone:up(1)
phone:settle()
expect_eq(#P.since(phone, mark, "badge_set"), 0, "dragged off a closing panel an application keeps its badge")
P.open(phone)
P.slide(phone, P.items(phone)[1], 0, 34, 0.15, 1)
phone:home()
phone:wait(0.1)
phone:activator()
phone:wait(0.6)
phone:down(P.items(phone)[2], 2)
phone:wait(0.1)
phone:up(2)
expect_eq(#P.since(phone, mark, "launch"), 1, "a tap on the new panel opens an application")
P.no_harm(phone)

-- One look into the settings a drag: a second of scrolling or dragging costs as much as its beginning and end.
for _, case in ipairs{ { "along the strip", -90, 0 }, { "up and down", 0, 30 } } do
  phone = P.boot({}, { apps = P.numbered(9) })
  P.open(phone)
  phone:wait(2)
  phone:reset_counters()
  phone:wait(1)
  local idle = phone:counters().settings_reads
  phone:reset_counters()
  P.slide(phone, P.items(phone)[2], case[2], case[3], 1 - 1 / 60)
  phone:up()
  phone:wait(1 / 60)
  local drag = phone:counters().settings_reads - idle
  -- The poll stands still while the strip follows a finger.
  expect(drag <= 1, case[1] .. ": " .. drag .. " reads for a drag of sixty moves")
end
