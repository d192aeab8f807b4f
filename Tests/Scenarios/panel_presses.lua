-- Only a shown panel takes presses: what ripens or lifts while it closes does nothing, and the next home click is the
-- system's. And when the question comes, nobody else's finger on the strip has a say any more.
local P = require("panel")

-- `begin` puts the first finger down; the second closes the panel by a tap outside. The finger then stays or lifts.
for _, case in ipairs{
  { "a long press on an item", { }, function(phone) phone:down(P.items(phone)[2], 1) phone:wait(0.5) end, 0.6 },
  { "a long press that would show marks", { close = true },
    function(phone) phone:down(P.items(phone)[2], 1) phone:wait(0.5) end, 0.6 },
  { "a tap on an item", {}, function(phone) phone:down(P.items(phone)[2], 1) end, 0 },
  { "a tap on a close mark", { close = true }, function(phone)
    P.long_press(phone, P.items(phone)[1])
    phone:down(P.sub(phone, P.items(phone)[2], P.tag.mark), 1)
  end, 0 },
  { "OK", {}, function(phone)
    P.long_press(phone, P.items(phone)[1])
    phone:down(P.seen(phone, P.tag.ok), 1)
  end, 0 },
  { "Cancel", {}, function(phone)
    P.long_press(phone, P.items(phone)[1])
    phone:down(P.seen(phone, P.tag.cancel), 1)
  end, 0 },
} do
  local what = case[1] .. " as the panel closes: "
  local phone = P.boot(case[2])
  P.open(phone)
  case[3](phone)
  local mark = P.mark(phone)
  phone:down(P.outside(phone), 2)
  phone:wait(0.1)
  phone:up(2)
  phone:wait(case[4])
  phone:up(1)
  if P.panel(phone) then expect_eq({ P.panel(phone).w, P.panel(phone).h }, { 1, 1 }, what .. "it goes on closing") end
  phone:settle()
  P.closed(phone)
  expect_eq(#P.since(phone, mark, "launch") + #P.since(phone, mark, "badge_set"), 0, what .. "nothing happens")
  phone:home()
  expect_eq(P.clicks_passed(phone), 1, what .. "the next home click is the system's")
  P.open(phone)
  expect_eq(P.ids(phone), P.names(3, 1), what .. "and all is there the next time")
  expect_eq(P.panel(phone).h, 110, what .. "unasked")
  P.no_harm(phone)
end

-- With marks shown the panel closes as ever: the edit mode does not outlive it, nor its last item.
for _, ends in ipairs{ "closed", "emptied" } do
  local phone = P.boot{ close = true }
  P.open(phone)
  P.long_press(phone, P.items(phone)[1])
  if ends == "closed" then
    P.close(phone)
  else
    for n = 3, 1, -1 do
      phone:tap(P.sub(phone, P.item(phone, P.app(n)), P.tag.mark))
      if n > 1 then phone:settle() end
    end
    phone:home()
    phone:settle()
    P.closed(phone)
    expect_eq(P.clicks_passed(phone), 0, "a click closes a panel whose last item has just been closed")
  end
  phone:home()
  expect_eq(P.clicks_passed(phone), 1, ends .. ": the next click is the system's")
  P.no_harm(phone)
end

-- The question under a finger that then slides: the item stays, and the finger's way is nobody's.
for _, way in ipairs{ 80, -80 } do
  local phone = P.boot()
  P.open(phone)
  local before, mark = P.items(phone), P.mark(phone)
  local from = P.middle(before[2])
  phone:down(from)
  phone:wait(1)
  P.must(P.seen(phone, P.tag.text), "the question has come")
  P.slide_on(phone, from, 0, way, 0.2)
  expect_eq(P.items(phone)[2].y, before[2].y, way .. ": the item does not follow")
  phone:up()
  phone:settle()
  expect_eq(#P.since(phone, mark, "badge_set"), 0, way .. ": no badge is cleared")
  for i, item in ipairs(P.items(phone)) do P.near(item, P.frame(before[i]), way .. ": place " .. i) end
  phone:tap(P.seen(phone, P.tag.cancel))
  phone:settle()
  P.swipe_up(phone, P.items(phone)[2])
  phone:settle()
  expect_eq(#P.since(phone, mark, "badge_set"), 1, way .. ": after it drags count again")
  P.no_harm(phone)
end

-- Other fingers that were down when it came: one that pressed, one that was about to tap.
local phone = P.boot()
P.open(phone)
local mark = P.mark(phone)
phone:down(P.items(phone)[1], 1)
phone:wait(0.4)
phone:down(P.items(phone)[2], 2)
phone:wait(0.2)
phone:down(P.items(phone)[3], 3)
phone:wait(0.3)
expect_eq(#phone:all{ parent = P.content(phone), tag = P.tag.text }, 3, "asked")
phone:up(3)
phone:wait(1)
expect_eq(#phone:all{ parent = P.content(phone), tag = P.tag.text }, 3, "a second finger's press does not ask again")
phone:up(2)
phone:up(1)
phone:settle()
expect_eq(#P.since(phone, mark, "launch"), 0, "a tap that began before the question opens nothing under it")
P.must(P.panel(phone), "and the question stands")
phone:tap(P.seen(phone, P.tag.ok))
phone:settle()
expect_eq(#P.since(phone, mark, "badge_set"), 3, "and is answered")
P.no_harm(phone)
