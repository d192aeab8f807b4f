-- Dark and light: ink, paper and material of everything on the panel, and what lies behind it.
local P = require("panel")
local black, white = "#000000ff", "#ffffffff"
for _, light in ipairs{ false, true } do
  local ink, paper = light and black or white, light and white or black
  local what = light and "light: " or "dark: "
  local phone = P.boot{ light = light }
  P.open(phone)
  expect_eq(P.panel(phone).background, light and white or nil, what .. "panel")
  expect_eq(P.top(phone, P.tag.bubble).background, light and "#ffffffb3" or nil, what .. "bubble")
  expect_eq(P.top(phone, P.tag.logo).tint, paper, what .. "logo")
  expect_eq(P.overlay(phone).background, light and "#000000b3" or "#ffffffb3", what .. "the screen behind")
  expect_eq(P.top(phone, P.tag.screen).alpha, 0, what .. "is not blurred")
  for _, item in ipairs(P.items(phone)) do
    expect_eq(phone:find{ parent = item, class = "UILabel" }.text_color, ink, what .. "name")
    local mark = P.sub(phone, item, P.tag.mark)
    expect_eq({ mark.tint, mark.background }, { ink, paper }, what .. "close mark")
  end
  P.long_press(phone, P.items(phone)[1])
  expect_eq(P.part(phone, P.tag.text).text_color, ink, what .. "question")
  expect_eq(P.part(phone, P.tag.ok).background, "#0000001a", what .. "buttons")
  expect_eq(phone:find{ inside = P.part(phone, P.tag.ok), class = "UILabel" }.text_color, ink, what .. "their titles")
  phone:tap(P.part(phone, P.tag.ok))
  phone:settle()
  expect_eq(P.empty_text(phone).text_color, ink, what .. "the empty panel's text")
  P.close(phone)
  P.open(phone)
  expect_eq(P.empty_text(phone).text_color, ink, what .. "also when it opens empty")
  P.no_harm(phone)
end
-- The scheme may change while the panel is closed.
local phone = P.boot()
P.open(phone)
P.close(phone)
phone:set{ light = true, back = true, blur = true }
P.open(phone)
expect_eq(P.panel(phone).background, white, "the next opening has the new colours")
expect_eq(P.overlay(phone).background, "#00000003", "`back` leaves the screen clear")
expect_eq(P.top(phone, P.tag.screen).alpha, 1, "`blur` blurs it")
