-- Views are looked up in drawing order, by any of their properties, and are plain tables that remember who they are.
local phone = boot { extension = false, apps = { { id = "a.b.one", name = "One", badge = 2 }, { id = "a.b.two", name = "Two" } } }
local home = phone:find { window = "home", class = "UIWindow" }
expect(home, "windows are views")
expect_eq({ home.x, home.y, home.w, home.h }, { 0, 0, 375, 667 }, "the home window fills the screen")
expect(home.level < phone:find { window = "statusbar" }.level, "below the status bar")
expect_eq(home.screen, { x = 0, y = 0, w = 375, h = 667 }, "a rectangle is a plain table")
expect_eq(home.transform, { 1, 0, 0, 1, 0, 0 }, "six numbers")
expect_eq(home.text, nil, "what a view has not is nil")
expect_eq(phone:find { window = "overlay" }, nil, "nobody else has a window")

local label = phone:find { text = "Two" }
expect(label and label.font and label.font_size > 0 and label.text_color:match("^#%x%x%x%x%x%x%x%x$"), "a label has its type")
expect_eq(label.level, nil, "a label is no window")
expect_eq(#phone:all { text = "Two", class = "UIView" }, #phone:all { text = "Two" }, "superclasses count")
expect_eq(phone:find { text = "two" }, nil, "texts are compared exactly")

-- parents, children and depth
local function contains(view, wanted)
  for _, child in ipairs(view.children) do
    if child.text == wanted or contains(child, wanted) then return true end
  end
  return false
end
local icon = phone:icon("a.b.two")
expect(contains(icon, "Two") and not contains(icon, "One"), "an icon holds its label")
expect_eq(phone:find { inside = icon, text = "Two" }, phone:again(label), "inside finds it at any depth")
expect_eq(phone:find { inside = icon, text = "One" }, nil, "and nothing else")
expect_eq(#phone:all { parent = icon }, #icon.children, "parent finds the direct children")
expect_eq(phone:all { parent = icon }, icon.children, "which are the same")
expect(#phone:all { inside = home } >= #phone:all { parent = home }, "inside reaches deeper")
expect_eq(phone:icon("com.apple.WebViewService"), nil, "what is not on the home screen has no icon there")

-- drawing order: every view comes after the one that holds it, and windows by level
local place, order = {}, phone:all {}
local level = -math.huge
for i, view in ipairs(order) do
  if view.level then
    expect(view.level >= level, "windows come by level")
    level = view.level
  end
end
local seen = 0
local function walk(view)
  seen = seen + 1
  expect_eq(order[seen].class, view.class, "place " .. seen .. " of the walk")
  for _, child in ipairs(view.children) do walk(child) end
end
for _, view in ipairs(order) do if view.level then walk(view) end end
expect_eq(seen, #order, "all views are in the windows")

-- visible
for _, view in ipairs(phone:all { visible = true }) do
  local s = view.screen
  expect(not view.hidden and view.presented_alpha > 0.01 and s.x < 375 and s.y < 667 and s.x + s.w > 0 and s.y + s.h > 0,
    "visible views are on the screen")
end
expect_eq(#phone:all { visible = true } + #phone:all { visible = false }, #order, "a view is visible or not")

-- tables
local words = tostring(label)
expect(words:find("UILabel", 1, true) and words:find("\"Two\"", 1, true) and not words:find("0x"), words)
local keys = {}
for key in pairs(label) do keys[key] = true end
expect(keys.children and keys.animations and keys.gestures and not keys.level and not keys.number, "pairs visits what it has")
local copy = {}
for key, value in pairs(home) do copy[key] = value end
expect_eq(home, copy, "a view compares as the table that it is")
expect(phone:dump("home"):find("\n%s+UILabel.-\"Two\""), "the dump is indented text")
expect(not phone:dump():find("0x"), "without addresses")
expect(#phone:dump() > #phone:dump("statusbar"), "the whole is longer than a part")
