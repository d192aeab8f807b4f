-- Applications taken off in quick succession leave the others side by side, whoever goes first and however close
-- together. One that moves up to fill a place takes no tap on the way.
local P = require("panel")
for _, paging in ipairs{ false, true } do
  for _, pair in ipairs{ { 1, 2 }, { 2, 1 }, { 1, 3 }, { 3, 1 }, { 3, 2 } } do
    for _, pause in ipairs{ 0, 0.1, 0.25, 0.4 } do
      local what = ("%s%d then %d, %g s later"):format(paging and "paged: " or "", pair[1], pair[2], 0.1 + pause)
      local phone = P.boot({ close = true, paging = paging }, { apps = P.numbered(6) })
      P.open(phone)
      P.long_press(phone, P.items(phone)[1])
      local before = P.items(phone)
      local gone, marks = {}, {}
      for i, place in ipairs(pair) do
        gone[before[place].name] = true
        marks[i] = P.sub(phone, before[place], P.tag.mark)
      end
      phone:tap(marks[1])
      phone:wait(pause)
      phone:tap(marks[2])
      phone:settle()
      if pause == 0.4 and pair[2] > pair[1] then
        expect_eq(#P.ids(phone), 5, what .. ": what moves is not closed")
        phone:tap(P.sub(phone, P.item(phone, before[pair[2]].name), P.tag.mark))
        phone:settle()
      end
      local wanted = {}
      for _, item in ipairs(before) do
        if not gone[item.name] then wanted[#wanted + 1] = item.name end
      end
      expect_eq(P.ids(phone), wanted, what .. ": the others stay in order")
      for i, item in ipairs(P.items(phone)) do P.near(item, P.frame(before[i]), what .. ": place " .. i) end
      local cleared = {}
      for _, event in ipairs(phone:events("badge_set")) do cleared[event.id] = (cleared[event.id] or 0) + 1 end
      for id in pairs(gone) do expect_eq(cleared[id], 1, what .. ": " .. id .. " is cleared once") end
      if paging then expect_eq(#P.part(phone, P.tag.dots).children, 2, what .. ": dots") end
      expect_eq(P.strip(phone).scroll.content_w, paging and 512 or 19 + 4 * 79, what .. ": content")
      P.no_harm(phone)
    end
  end
end

-- The second is dragged while the first one's place is being filled: whoever it is, and however long it is held.
for _, second in ipairs{ 1, 2, 3 } do
  for _, pause in ipairs{ 0, 0.2, 0.4 } do
    local what = ("dragged off: 2, then %d, %g s later"):format(second, pause)
    local phone = P.boot({}, { apps = P.numbered(6) })
    P.open(phone)
    local before = P.items(phone)
    P.swipe_down(phone, before[2])
    phone:wait(pause)
    local next = P.items(phone)[second == 2 and 1 or second]
    phone:drag(next, 0, -44, 0.5)
    phone:settle()
    local left = P.items(phone)
    expect_eq(#left, 5, what .. ": one is gone")
    for i, item in ipairs(left) do P.near(item, P.frame(before[i]), what .. ": held and let go, place " .. i) end
    P.swipe_down(phone, left[1])
    phone:wait(pause)
    P.swipe_up(phone, P.items(phone)[second])
    phone:settle()
    left = P.items(phone)
    for i, item in ipairs(left) do P.near(item, P.frame(before[i]), what .. ": both off, place " .. i) end
    P.no_harm(phone)
  end
end
