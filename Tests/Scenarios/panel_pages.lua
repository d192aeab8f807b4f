-- A paged strip: three a page, a dot for each page and the shown one in ink; a fling settles on a page; taking
-- applications off keeps pages and dots in step.
local P = require("panel")
local grey = "#808080ff"
local function dots(phone)
  local colours = {}
  for i, dot in ipairs(P.part(phone, P.tag.dots).children) do
    expect_eq(dot.tag, i - 1, "a dot is tagged with its page")
    P.near(dot, { (i - 1) * 16 + 10, 2.5, 6, 6 }, "dot " .. i)
    expect_eq(dot.corner_radius, 3, "dots are round")
    colours[i] = dot.background
  end
  return colours
end
local function page(phone, wanted, count, ink, what)
  expect_near(P.strip(phone).scroll.x, wanted * 256, 0.01, what .. ": the strip rests on page " .. wanted)
  local colours = {}
  for i = 1, count do colours[i] = i == wanted + 1 and ink or grey end
  expect_eq(dots(phone), colours, what .. ": dots")
  local width = (count - 1) * 16 + 20
  P.near(P.part(phone, P.tag.dots), { (256 - width) / 2, 7, width, 11 }, what .. ": their row")
end

for _, light in ipairs{ false, true } do
  local ink = light and "#000000ff" or "#ffffffff"
  local phone = P.boot({ paging = true, light = light }, { apps = P.numbered(7) })
  P.open(phone)
  -- ten points more for the dots; y = 120 - 74 - 20; a page is 19 + 3 * 79 = 256 wide
  P.near(P.panel(phone), { 32, 30, 256, 120 }, "panel")
  for i, item in ipairs(P.items(phone)) do
    P.near(item, { 19 + (i - 1) * 79 + (i - 1) // 3 * 19, 26, 60, 79 }, item.name)
  end
  expect_eq(P.strip(phone).scroll.content_w, 3 * 256, "three pages of content")
  expect_eq(P.strip(phone).scroll.paging, true, "which scroll page by page")
  expect(P.part(phone, P.tag.dots).z > P.strip(phone).z, "above which the dots are drawn")
  page(phone, 0, 3, ink, "at first")

  for _, step in ipairs{ { -150, 1 }, { -150, 2 }, { -150, 2 }, { 150, 1 }, { 150, 0 }, { 150, 0 } } do
    phone:fling({ 160, 90 }, step[1], 0, 0.15)
    phone:settle()
    page(phone, step[2], 3, ink, "flung by " .. step[1])
  end
  phone:drag({ 160, 90 }, -200, 0, 0.4)
  phone:settle()
  page(phone, 1, 3, ink, "a slow drag beyond the middle of a page")
  phone:tap(P.items(phone)[5])
  expect_eq(P.since(phone, 0, "launch")[1].id, P.app(3), "an application of a later page opens")
  phone:settle()
  P.no_harm(phone)
end

-- The last page, with one application, empties: its dot goes and the strip moves to the page before it.
local phone = P.boot({ paging = true }, { apps = P.numbered(7) })
P.open(phone)
for _ = 1, 2 do
  phone:fling({ 160, 90 }, -150, 0, 0.15)
  phone:settle()
end
local before = P.items(phone)
P.swipe_down(phone, P.item(phone, P.app(1)))
phone:settle()
expect_eq(P.ids(phone), P.names(7, 2), "the last one is gone")
expect_eq(P.strip(phone).scroll.content_w, 2 * 256, "two pages of content")
page(phone, 1, 2, "#ffffffff", "after the last page emptied")
-- From the middle: everything behind it moves up, also over the page's edge.
P.swipe_up(phone, P.item(phone, P.app(4)))
phone:settle()
expect_eq(P.ids(phone), { P.app(7), P.app(6), P.app(5), P.app(3), P.app(2) }, "the order stays")
for i, item in ipairs(P.items(phone)) do P.near(item, P.frame(before[i]), "place " .. i) end
page(phone, 1, 2, "#ffffffff", "with a place free on the last page")
expect_eq(P.strip(phone).scroll.content_w, 2 * 256, "whose content stays full")
for left = 4, 1, -1 do
  local first = P.items(phone)[1]
  if first.screen.x < 0 then
    phone:fling({ 160, 90 }, 150, 0, 0.15)
    phone:settle()
  end
  P.swipe_down(phone, P.item(phone, first.name))
  phone:settle()
  expect_eq(#P.items(phone), left, "one less")
  local pages = (left + 2) // 3
  page(phone, 0, pages, "#ffffffff", left .. " left")
  expect_eq(P.strip(phone).scroll.content_w, math.max(pages * 256, 257), left .. " left: content")
end
P.swipe_down(phone, P.items(phone)[1])
phone:settle()
expect_eq(P.empty_text(phone).text, "No Badges", "and at last the text")
P.close(phone)
P.open(phone)
expect_eq(P.part(phone, P.tag.dots), nil, "an empty panel has no dots")
P.no_harm(phone)

-- Swipes along a page that has just been flung: the strip counts as moving no longer than it moves.
phone = P.boot({ paging = true }, { apps = P.numbered(7) })
P.open(phone)
phone:fling({ 160, 90 }, -150, 0, 0.15)
phone:settle()
P.swipe_down(phone, P.item(phone, P.app(4)))
phone:settle()
expect_eq(P.item(phone, P.app(4)), nil, "a drag after a fling takes off what it drags")
-- Without paging a fling changes no dot, for there is none.
phone = P.boot({}, { apps = P.numbered(7) })
P.open(phone)
phone:fling({ 160, 90 }, -150, 0, 0.15)
phone:settle()
expect(P.strip(phone).scroll.x > 100, "an unpaged strip scrolls freely")
expect_eq(P.part(phone, P.tag.dots), nil, "without dots")
expect_eq(P.strip(phone).scroll.content_w, 19 + 7 * 79, "seven in a row and a margin")
P.no_harm(phone)

-- However many pages there are, their dots stay inside the panel, apart and on one line; up to fifteen are sixteen points
-- from one another.
local function row(phone, what)
  local dots, last = P.part(phone, P.tag.dots), nil
  expect(dots.x >= 0 and dots.x + dots.w <= 256.01, what .. ": the row stays in the panel")
  for _, dot in ipairs(dots.children) do
    expect(dot.x + dot.w <= dots.w - 3.9, what .. ": a dot stays in the row")
    expect_near(dot.y + dot.h / 2, 5.5, 0.01, what .. ": on its line")
    expect_near(dot.corner_radius, dot.w / 2, 0.01, what .. ": round")
    expect(not last or dot.x > last.x + last.w + 0.5, what .. ": apart from the one before")
    last = dot
  end
  return #dots.children, dots.children[2].x - dots.children[1].x
end
for _, case in ipairs{ { 45, "3", 15 }, { 46, "3", 16 }, { 40, "1", 40 } } do
  local what = case[3] .. " pages"
  phone = P.boot({ paging = true, amount = case[2], close = true }, { apps = P.numbered(case[1]) })
  P.open(phone)
  local count, step = row(phone, what)
  expect_eq(count, case[3], what)
  expect(case[3] > 15 and step < 16 or step == 16, what .. ": step")
end
phone = P.boot({ paging = true, close = true }, { apps = P.numbered(46) })
P.open(phone)
P.long_press(phone, P.items(phone)[1])
phone:tap(P.sub(phone, P.items(phone)[1], P.tag.mark))
phone:settle()
local count, step = row(phone, "one less")
expect_eq({ count, step }, { 15, 16 }, "one less: fifteen as ever")

-- A page counts as shown once it is reached: held beyond its middle the one before still is. (Closing looks anew.)
local last = P.items(phone)[3]
mark = P.mark(phone)
phone:tap(P.sub(phone, last, P.tag.mark))
P.slide(phone, { 160, 120 }, -170, 0, 0.1)
phone:wait(1)
expect(P.strip(phone).scroll.x > 128 and P.strip(phone).scroll.x < 255, "the strip is held between two pages")
expect_eq(#P.since(phone, mark, "badge_set"), 1, "while one was closed")
expect_eq(P.part(phone, P.tag.dots).children[1].background, "#ffffffff", "the page that it leaves is shown")
phone:up()
phone:settle()
expect_eq(P.part(phone, P.tag.dots).children[2].background, "#ffffffff", "and the next one when it has come")
P.no_harm(phone)
