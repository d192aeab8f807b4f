-- A vertical drag past the strip's middle, up or down, clears that application's badge and closes the gap; a
-- shorter one, one that returns and one along a scrolling strip do nothing.
local P = require("panel")
local function nothing_happened(phone, mark, what)
  expect_eq(#P.since(phone, mark, "badge_set") + #P.since(phone, mark, "launch"), 0, what .. ": nothing else happened")
end

for _, ios in ipairs{ "7.1", "8.1" } do
  for _, way in ipairs{ "up", "down" } do
    local what = ios .. " " .. way
    local phone = P.boot({}, { ios = ios, apps = P.numbered(4) })
    P.open(phone)
    local before = P.items(phone)
    local mark = P.mark(phone)
    P["swipe_" .. way](phone, before[2])
    phone:settle()
    expect_eq(P.ids(phone), { P.app(4), P.app(2), P.app(1) }, what .. ": it is gone, the others keep their order")
    for i, item in ipairs(P.items(phone)) do P.near(item, P.frame(before[i]), what .. ": place " .. i) end
    local set = P.since(phone, mark, "badge_set")
    expect_eq({ #set, set[1].id, set[1].value }, { 1, P.app(3), 0 }, what .. ": its badge is cleared, no other")
    expect_eq(#P.since(phone, mark, "notifications_cancelled"), 1, what .. ": and its notifications")
    expect_eq(#P.since(phone, mark, "quit") + #P.since(phone, mark, "launch"), 0, what .. ": nothing opens or ends")
    expect_eq(P.strip(phone).scroll.content_w, 257, what .. ": three fit, the strip can still bounce")
    expect(P.strip(phone).scroll.enabled, what .. ": and scrolls again")
    expect_eq(phone:icon(P.app(3)) ~= nil, true, what .. ": the icon stays on the home screen")
    phone:tap(P.item(phone, P.app(1)))
    phone:settle()
    expect_eq(phone:foreground(), P.app(1), what .. ": taps work after it")
    phone:home()
    P.open(phone)
    expect_eq(P.ids(phone), { P.app(4), P.app(2), P.app(1) }, what .. ": it does not come back")
    P.no_harm(phone)
  end
end

-- The strip is 110 high and an item stands at 18 with 79 of height: it must pass 55 with its top, or its bottom.
-- A finger's first ten points only make a drag of it.
for _, case in ipairs{ { "down", 44 }, { "up", -48 } } do
  local what, distance = case[1], case[2]
  local phone = P.boot()
  P.open(phone)
  local item, mark = P.items(phone)[2], P.mark(phone)
  phone:drag(item, 0, distance, 0.3)
  expect_near(P.item(phone, item.name).y, 18, 0.01, what .. ": it is on its way back")
  expect(math.abs(P.item(phone, item.name).screen.y - item.screen.y) > 5, what .. ": from where it was dragged")
  phone:tap(P.items(phone)[1])
  expect(P.panel(phone) ~= nil, what .. ": until it has returned, taps do nothing")
  phone:settle()
  P.near(P.item(phone, item.name), P.frame(item), what .. ": it has returned")
  nothing_happened(phone, mark, what)
  expect(P.strip(phone).scroll.enabled, what .. ": the strip scrolls again")
  phone:tap(P.item(phone, item.name))
  phone:settle()
  expect_eq(phone:foreground(), item.name, what .. ": and then taps work")
end

-- There and back under one finger.
local phone = P.boot()
P.open(phone)
local item, mark = P.items(phone)[2], P.mark(phone)
local x, y = item.screen.x + 30, item.screen.y + 40
phone:down{ x, y }
for step = 1, 20 do phone:move(x, y + 4 * step) phone:wait(1 / 60) end
expect_near(P.item(phone, item.name).y, 18 + 80 - 12, 1, "it follows the finger, from where that became a drag")
expect_eq(P.strip(phone).scroll.enabled, false, "and the strip does not scroll meanwhile")
for step = 20, 0, -1 do phone:move(x, y + 4 * step) phone:wait(1 / 60) end
phone:up()
phone:settle()
P.near(P.item(phone, item.name), P.frame(item), "dragged back it stays")
nothing_happened(phone, mark, "there and back")

-- A long press on an item that is being dragged is none, nor is another finger's on another item.
phone:down{ x, y }
for step = 1, 5 do phone:move(x, y + 4 * step) phone:wait(1 / 60) end
phone:wait(2)
expect_eq(P.part(phone, P.tag.text), nil, "no question during a drag")
phone:down(P.items(phone)[3], 2)
phone:wait(2)
expect_eq(P.part(phone, P.tag.text), nil, "nor by another finger")
phone:up(2)
phone:up()
phone:settle()
P.no_harm(phone)
