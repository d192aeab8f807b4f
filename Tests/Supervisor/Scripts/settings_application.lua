-- Proves how a script works the Settings application, and what it hears when it asks for what is not there.
local pane = settings_app { device = "iPhone 5s", settings = { enable = true } }
pane:settle()
expect_eq(tostring(pane), "pane (iPhone 5s, iOS 8.1)", "what it is called")

local page = pane:page()
expect_eq(page.title, "Pendix", "the page's title")
local kinds = {}
for i, row in ipairs(page.rows) do kinds[i] = row.kind end
expect_eq(kinds, { "switch", "link", "link" }, "the kinds of its rows")
expect_eq(page.rows[1].value, true, "a switch's value")
expect_eq(page.rows[2].value, nil, "a link has none")
expect(page.rows[1].icon:find("Enable", 1, true), "an icon is known by its file")

-- Rows off screen are scrolled to, both ways.
pane:open("Configuration")
pane:settle()
local rows = pane:page().rows
local first, last = rows[1].label, rows[#rows].label
pane:open(last)
pane:settle()
expect_eq(pane:page().title, last, "the last row was reached")
pane:back()
pane:settle()
pane:toggle(first)
pane:settle()
expect_eq(pane:page().rows[1].value, true, "and turned")

-- A segment and a choice are named by what is written on them; a list stays open.
local segment
for _, row in ipairs(rows) do segment = row.kind == "segment" and row or segment end
pane:choose(segment.label, segment.choices[2])
pane:settle()
for _, row in ipairs(pane:page().rows) do
  if row.kind == "segment" then expect_eq(row.value, segment.choices[2], "the segment was taken") end
end

-- Turned, it is touched where it is seen.
pane:rotate(4)
pane:settle()
local window = pane:find { window = "app", class = "UIWindow" }
expect_eq({ window.screen.w, window.screen.h }, { 568, 320 }, "the window lies across")
pane:toggle(first)
pane:settle()
expect_eq(pane:page().rows[1].value, false, "the switch was found there too")
pane:rotate(1)
pane:settle()

local function refused(what, text, action)
  local ok, problem = pcall(action)
  expect(not ok, what .. " is refused")
  expect(not ok and problem:find(text, 1, true), what .. ": " .. tostring(problem))
end
for _, case in ipairs {
  { "an unknown row", "the page has no row '" .. first .. "s'", function() pane:toggle(first .. "s") end },
  { "a row of another kind", "of another kind", function() pane:open(first) end },
  { "an unknown segment", "has no segment 'x'", function() pane:choose(segment.label, "x") end },
  { "an unknown method", "did you mean 'toggle'?", function() pane:toggel(first) end },
  { "a method of the home screen", "a pane has no method 'badge'", function() pane:badge("x", 1) end },
  { "an unknown field of a page", "a page has no field 'row'", function() return pane:page().row end },
  { "typing without a field", "nothing takes what is typed", function() pane:type("1") end },
  { "a swipe without cards", "no cards", function() pane:swipe("left") end },
  { "a direction that is none", "did you mean 'left'?", function() pane:swipe("lft") end },
  { "an orientation that is none", "1, 2, 3 or 4", function() pane:rotate(5) end },
  { "an unknown option", "settings_app", function() settings_app(1, 2) end },
} do refused(case[1], case[2], case[3]) end
expect_eq(pane:alert(), nil, "no alert")
expect_eq(pane:sheet(), nil, "no sheet")

-- A page that is not installed refuses the start.
local other = boot { missing_files = { "/Library/PreferenceLoader/Preferences" } }
refused("Settings without the page", "has no page", function() other:open_settings() end)
other:wait(1)
