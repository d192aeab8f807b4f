-- A finger that scrolls the strip drags no application off it, however it goes on.
local P = require("panel")
for _, case in ipairs{ { "slanting", -120, 40 }, { "steeply at the end", -60, 90 } } do
  local phone = P.boot({}, { apps = P.numbered(9) })
  P.open(phone)
  local item, mark = P.items(phone)[2], P.mark(phone)
  local x, y = item.screen.x + 30, item.screen.y + 40
  phone:down{ x, y }
  for step = 1, 15 do phone:move(x + case[2] * step / 15, y) phone:wait(1 / 60) end
  expect(P.strip(phone).scroll.x > 20, case[1] .. ": the strip scrolls")
  for step = 1, 15 do phone:move(x + case[2], y + case[3] * step / 15) phone:wait(1 / 60) end
  phone:up()
  phone:settle()
  expect_eq(#P.items(phone), 9, case[1] .. ": all are still there")
  expect_eq(#P.since(phone, mark, "badge_set"), 0, case[1] .. ": no badge is cleared")
  for _, each in ipairs(P.items(phone)) do
    expect_near(each.y, 18, 0.01, case[1] .. ": " .. each.name .. " in its row")
  end
  expect(P.strip(phone).scroll.enabled, case[1] .. ": the strip scrolls on")
  -- What is at rest afterwards can be dragged off and tapped.
  local shown
  for _, each in ipairs(P.items(phone)) do
    if not shown and each.screen.x > 40 then shown = each end
  end
  P.swipe_down(phone, shown)
  phone:settle()
  expect_eq(P.item(phone, shown.name), nil, case[1] .. ": a vertical drag works afterwards")
  P.no_harm(phone)
end
