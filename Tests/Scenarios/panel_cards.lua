-- Card mode: the newest snapshot in the screen's proportions with the icon at its lower edge; the panel grows by the
-- card's height. Without a snapshot the card is empty.
local P = require("panel")
-- Icon 60 x 74 (tablet 76 x 93), the card as wide as the icon: 60 * 480 / 320 = 90, 60 * 568 / 320 = 106.5,
-- 60 * 667 / 375 = 106.72, 76 * 1024 / 768 = 101 1/3.
for _, case in ipairs{ { "iPhone 4S", "7.1", 60, 90, 74 }, { "iPhone 5s", "8.1", 60, 106.5, 74 },
  { "iPhone 6", "8.1", 60, 106.72, 74 }, { "iPad Air 2", "8.1", 76, 101 + 1 / 3, 93 } } do
  local what, width, card, icon = case[1] .. ": ", case[3], case[4], case[5]
  local apps = P.numbered(3, { running = true })
  apps[2].snapshot = false
  local phone = P.boot({ ca = true }, { device = case[1], ios = case[2], apps = apps })
  P.open(phone)
  local height = icon + 36 + card - icon
  expect_near(P.panel(phone).h, height, 0.01, what .. "panel")
  expect_near(P.content(phone).h, height, 0.01, what .. "content")
  expect_near(P.strip(phone).h, height, 0.01, what .. "strip")
  for i, item in ipairs(P.items(phone)) do
    local name = what .. item.name .. ": "
    expect_near(item.y, 0, 0.01, name .. "at the top")
    expect_near(item.h, icon + 5 + card - width, 0.01, name .. "as much higher as the card than the icon")
    local image = P.sub(phone, item, P.tag.icon)
    P.near(image, { 0, 0, width, card }, name .. "card")
    expect_eq({ image.corner_radius, image.background }, { 4, "#cccccc80" }, name .. "rounded, on grey")
    expect_eq(image.image ~= nil, i ~= 2, name .. "with the snapshot if there is one")
    if image.image then expect(image.image:find(item.name, 1, true) ~= nil, name .. "its own") end
    local small = P.sub(phone, item, P.tag.card)
    P.near(small, { (width - 25) / 2, card - 20, 25, 25 }, name .. "icon at the lower edge")
    expect_eq({ item.shadow_opacity, item.shadow_radius, item.shadow_color }, { 1, 10, "#000000ff" },
      name .. "its shadow")
    expect_eq(item.children[#item.children].tag, P.tag.card, name .. "the icon lies above all")
    P.near(phone:find{ parent = item, class = "UILabel" }, { -10, card + 5, width + 20, 15 }, name .. "name below")
    expect_near(P.sub(phone, item, P.tag.badge).y, -8, 0.01, name .. "badge at the top")
  end
  P.long_press(phone, P.items(phone)[1])
  expect_near(P.panel(phone).h, height + 110, 0.01, what .. "the question adds the same")
  phone:tap(P.part(phone, P.tag.cancel))
  phone:settle()
  expect_near(P.panel(phone).h, height, 0.01, what .. "and takes it back")
  P.swipe_down(phone, P.items(phone)[1])
  phone:settle()
  expect_eq(#P.items(phone), 2, what .. "cards are swiped off too")
  for i, item in ipairs(P.items(phone)) do expect_near(item.y, 0, 0.01, what .. "and close up") end
  P.close(phone)
  P.no_harm(phone)
end
local phone = P.boot({ ca = true, light = true }, { apps = P.numbered(1) })
P.open(phone)
expect_eq(P.sub(phone, P.items(phone)[1], P.tag.icon).background, "#33333380", "light: a darker grey")
phone = P.boot({ ca = true }, { apps = P.numbered(0) })
P.open(phone)
expect_eq(P.panel(phone).h, 110, "an empty panel has no card's height")
phone = P.boot({ ca = true, rech = true, position = "bottom" })
P.open(phone)
expect_near(P.panel(phone).y + P.panel(phone).h, 568 - 32, 0.01, "at the bottom the grown panel keeps its distance")
