-- What taking applications off leads to outside the panel: the one in front is left before it is quit, clearing all does
-- not count for what is taken off later, and a cleared application's mark on the home screen goes at once.
local P = require("panel")
local function clear_all(phone)
  P.long_press(phone, P.items(phone)[1])
  phone:tap(P.seen(phone, P.tag.ok))
  phone:settle()
end
local function quits(phone, mark)
  local ids = {}
  for i, event in ipairs(P.since(phone, mark, "quit")) do ids[i] = event.id end
  table.sort(ids)
  return ids
end

for _, ios in ipairs{ "7.1", "8.1" } do
  local phone = P.boot({ badge = true }, { ios = ios, apps = P.numbered(4, { running = true, badge = 0 }) })
  phone:run(P.app(1))
  phone:settle()
  phone:activator()
  phone:settle()
  expect_eq(P.ids(phone), P.names(2, 4), ios .. ": the application in front is not listed")
  local mark = P.mark(phone)
  clear_all(phone)
  local eight = ios == "8.1"
  expect_eq(quits(phone, mark), P.names(eight and 1 or 2, 4), ios .. ": from 8.0 on all goes that runs, shown or not")
  expect_eq(phone:foreground(), not eight and P.app(1) or nil, ios .. ": and what was in front is left")
  local left, ended
  for i, event in ipairs(phone:events()) do
    if i > mark and event.selector == "willAnimateDeactivation:" then left = i end
    if event.kind == "quit" and event.id == P.app(1) then ended = i end
  end
  if eight then expect(left and ended and left < ended, "before it ends: it does not look like a crash") end
  P.close(phone)
  phone:home()

  for n = 3, 1, -1 do
    phone:run(P.app(n))
    phone:home()
  end
  phone:settle()
  P.open(phone)
  mark = P.mark(phone)
  P.swipe_down(phone, P.item(phone, P.app(2)))
  phone:settle()
  expect_eq(quits(phone, mark), { P.app(2) }, ios .. ": what is taken off alone later is quit as well")
  P.no_harm(phone)
end

local phone = P.boot{ b = true, newb = true }
local function mark_on(id) return phone:find{ parent = phone:icon(id), tag = 1953 } end
P.open(phone)
expect_eq(mark_on(P.app(2)).presented_alpha, 1, "a mark stands for the badge")
P.swipe_up(phone, P.item(phone, P.app(2)))
while #phone:events("badge_set") == 0 do phone:wait(1 / 60) end
expect_eq(mark_on(P.app(2)), nil, "it goes with the badge")
expect_eq(mark_on(P.app(1)).presented_alpha, 1, "and no other")
P.no_harm(phone)
