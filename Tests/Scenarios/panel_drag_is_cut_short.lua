-- A drag that the display's turning off cuts short takes nothing off, and leaves nothing stuck.
local L = require("lock")

for _, ios in ipairs{ "7.1", "8.1" } do
  local phone = L.boot({}, { device = "iPhone 5s", ios = ios })
  L.open(phone)
  local item = L.item(phone, 2)
  local s = item.screen
  local x, y = s.x + s.w / 2, s.y + s.h / 2
  phone:down(item)
  for step = 1, 10 do
    phone:wait(1 / 60)
    phone:move(x, y - 12 * step)
  end
  expect(L.item(phone, 2).y < item.y - 50, ios .. ": the item follows the finger")
  phone:display(false)
  phone:up()
  phone:settle()
  phone:display(true)
  phone:wait(1)
  phone:unlock()
  phone:settle()
  expect_eq(#phone:events("badge_set"), 0, ios .. ": no badge was cleared")
  L.open(phone)
  expect_eq(L.item(phone, 2).y, item.y, ios .. ": the item is where it belongs")
  phone:drag(L.item(phone, 2), 0, -150, 0.3)
  phone:settle()
  expect_eq(L.item(phone, 2), nil, ios .. ": a drag to the end takes it off")
  local set = phone:events("badge_set")
  expect_eq({ #set, set[1] and set[1].id }, { 1, L.ids[2] }, ios .. ": and clears its badge")
  L.no_harm(phone)
end
