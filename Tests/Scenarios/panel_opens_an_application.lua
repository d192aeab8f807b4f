-- Open, look, open an application: the panel grows out of the indicator, lists what has a badge with the newest
-- first, and a tap on one opens it and closes the panel.
local P = require("panel")
for _, ios in ipairs{ "7.1", "8.1" } do
  local phone = P.boot({}, { ios = ios })
  local indicator = phone:indicator()
  P.press_indicator(phone)
  local growing = P.panel(phone)
  expect_eq(P.frame(growing), { 32, 30, 256, 110 }, "the panel is on its way to its place")
  expect(growing.screen.w < 256, "and begins small")
  expect(growing.screen.y < 30, "at the indicator")
  expect_near(phone:settle(), 0.5, 0.1, "within half a second")

  -- 320 x 568: eight tenths wide, ten points below the item; icons of 60 x 74 and 36 points around them.
  local panel, strip = P.panel(phone), P.strip(phone)
  expect_eq({ panel.screen.x, panel.screen.y, panel.screen.w, panel.screen.h }, { 32, 30, 256, 110 }, "it stands")
  expect_eq(panel.corner_radius, 10, "with round corners")
  expect_eq(P.frame(P.content(phone)), { 0, 0, 256, 110 }, "its content fills it")
  expect_eq(P.frame(strip), { 0, 0, 256, 110 }, "and so does the strip")
  expect_eq(P.ids(phone), P.names(3, 1), "the newest badge comes first")
  -- gaps of (256 - 3 * 60) / 4 = 19; y = (110 - 84) / 2 + 5 = 18
  for i, item in ipairs(P.items(phone)) do
    P.near(item, { 19 + (i - 1) * 79, 18, 60, 79 }, item.name)
    local n = item.name:match("%d")
    P.near(P.sub(phone, item, P.tag.icon), { 0, 0, 60, 60 }, "icon")
    P.near(phone:find{ parent = item, text = "App " .. n }, { -10, 65, 80, 15 }, "name")
    P.near(P.sub(phone, item, P.tag.mark), { 4, 4, 0, 0 }, "close mark")
    local badge = P.sub(phone, item, P.tag.badge)
    P.near(badge, { 44, -8, 24, 24 }, "badge on the corner") -- 60 - 12 - 4, 0 - 12 + 4
    expect_eq({ badge.name, badge.hidden, badge.corner_radius }, { n, false, 12 }, "with its count")
    local order = {}
    for k, part in ipairs(item.children) do order[k] = part.tag end
    expect_eq(order, { 1, 0, -1, 99 }, "icon, name, mark and badge lie in this order")
  end
  expect_eq(strip.scroll.content_w, 257, "three fill the strip, which can still bounce")
  expect_eq(strip.scroll.paging, false, "and scrolls freely")

  local bubble, logo = P.top(phone, P.tag.bubble), P.top(phone, P.tag.logo)
  P.near(bubble, { indicator.x - indicator.w / 2, 5, 2 * indicator.w, 2 * indicator.h + 10 }, "bubble")
  P.near(logo, { indicator.x, indicator.y, indicator.w, indicator.h }, "logo")
  expect_eq(logo.image, "Pendix", "the logo is the indicator's")
  local order = {}
  for i, view in ipairs(P.overlay(phone).children) do order[i] = view.tag end
  expect_eq(order, { 21, -1, 2, 1, 3 }, "the panel lies above all")
  expect_eq(P.overlay(phone).interactive, true, "the overlay takes touches")
  phone:wait(0.3)
  for _, view in ipairs(phone:all{ window = "statusbar", class = "UIStatusBarItemView" }) do
    expect_near(view.alpha, view.x == indicator.x and 1 or 0.3, 0.001, "only the indicator keeps its strength")
  end
  phone:tap(P.item(phone, P.app(2)))
  expect_eq(P.since(phone, 0, "launch")[1].id, P.app(2), "a tap opens the application")
  phone:settle()
  expect_eq(phone:foreground(), P.app(2), "which comes to the front")
  P.closed(phone)
  for _, line in ipairs{ "<Pendix> Loading Pendix UI!", "<Pendix> Pendix's UI dismissing!" } do
    expect_eq(P.logged(phone, line), 1, line)
  end
  P.no_harm(phone)
end
