-- Every page of the pane on a phone and on an iPad, upright and turned, in the languages of the package, as pictures;
-- and that nothing on them is cut off or covered.
local P = require("pane")

-- Rows by their places, for labels are translated; negative ones count from the end.
local pages = {
  root = {}, contact = { 3 }, configuration = { 2 }, reach = { 2, 6 }, position = { 2, 6, 2 }, marks = { 2, 10 },
  mark_color = { 2, 10, 3 }, apps = { 2, 14 }, app = { 2, 14, 1 }, icon = { 2, 15 }, icon_color = { 2, 15, 4 },
  lock = { 2, 16 }, where = { 2, 16, -3 },
}
local settings = { enable = true, light = true, fast = true, amount = "3", position = "middle", newb = true,
  colors = "purple", tint = "cyan", glow = true, hasTouchID = "1" }

local function inside(pane, view, page)
  local s, screen = view.screen, pane:find{ class = "UIWindow" }.screen
  expect(s.x > -0.6 and s.x + s.w < screen.w + 0.6, string.format("%s: '%s' stands across the side of the screen", page, view.text))
end

local function check(pane, page)
  for _, label in ipairs(pane:all{ class = "UILabel", visible = true }) do
    if label.text and #label.text > 0 and not page:find("color") then
      inside(pane, label, page)
      expect(label.text ~= "(null)", page .. ": a text is missing")
    end
  end
end

local order = { "root", "contact", "configuration", "reach", "position", "marks", "mark_color", "apps", "app", "icon",
  "icon_color", "lock", "where" }

-- The first page comes first, before it has been scrolled to its last row.
local function take(pane, prefix, wanted)
  for _, name in ipairs(order) do
    local path = pages[name]
    if not wanted or wanted[name] then
      for _, place in ipairs(path) do
        local rows = P.rows(pane)
        pane:open(rows[place < 0 and #rows + 1 + place or place].label)
        P.settle(pane)
      end
      if name == "icon_color" then pane:wait(2.9) end
      check(pane, prefix .. name)
      pane:shot(prefix .. name)
      for _ = 1, #path do P.back(pane) end
    end
  end
end

local few = { root = true, configuration = true, icon_color = true, mark_color = true, lock = true, contact = true }
for _, case in ipairs{
  { device = "iPhone 5s", ios = "7.1", language = "en" },
  { device = "iPhone 6", ios = "8.1", language = "it", few = few },
  { device = "iPhone 4S", ios = "8.1", language = "es", few = { root = true, configuration = true } },
  { device = "iPhone 6 Plus", ios = "8.3", language = "en", few = few, turned = true },
  { device = "iPad Air", ios = "8.1", language = "en" },
  { device = "iPad 2", ios = "7.1", language = "it", few = few, turned = true },
} do
  local _, pane = P.start(settings, { device = case.device, ios = case.ios, language = case.language })
  local prefix = case.device:gsub(" ", "") .. "-" .. case.language .. "-"
  take(pane, prefix, case.few)
  if case.turned then
    for _, orientation in ipairs{ 3, 1 } do
      pane:rotate(orientation)
      P.settle(pane)
      if orientation == 3 then take(pane, prefix .. "turned-", case.few) end
    end
    expect_eq(#P.rows(pane), 3, prefix .. "the first page after turning there and back")
  end
  P.no_harm(pane)
end
