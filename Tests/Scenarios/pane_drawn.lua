-- How the pages are drawn: places, sizes, types and colours of the first page's header, the colour cards, the sheet for a
-- code and the page about the extension, on a phone and on a tablet.
local P = require("pane")

local function frame(view) return { view.x, view.y, view.w, view.h } end
local function kids(pane, view) return pane:all{ parent = view } end
local function placed(view, wanted, what)
  for i, key in ipairs{ "x", "y", "w", "h" } do
    if wanted[i] then expect_near(view[key], wanted[i], 0.01, what .. ": " .. key) end
  end
end
local function typed(label, font, size, colour, what)
  expect_eq({ label.font, label.font_size, label.text_color }, { font, size, colour }, what .. ": type")
end
local light, thin = "HelveticaNeue-Light", "HelveticaNeue-UltraLight"

for _, case in ipairs{
  { "iPhone 5s", "7.1", 320, 568, 320, 0 }, { "iPhone 6 Plus", "8.3", 414, 736, 414, 0 },
  { "iPad Air", "7.1", 768, 1024, 390, -26, 448 }, -- its pages stand beside the list
} do
  local what, W, H, width, left = case[1] .. " ", case[3], case[4], case[5], case[6]
  local phone, pane = P.start({ tint = "blue" }, { device = case[1], ios = case[2] })

  -- The header: white far beyond its upper edge, a bar below, a title in the middle of what is left, a tab on the bar.
  local cell = pane:find{ class = "HeaderCellForPendix" }
  expect_eq({ cell.h, cell.background }, { 220, nil }, what .. "header")
  local ground = kids(pane, cell)[#kids(pane, cell)]
  placed(ground, { left, -H, width, H + 220 }, what .. "header's ground")
  expect_eq(ground.background, "#ffffffff", what .. "header's ground is white")
  local bar, title, tab = table.unpack(kids(pane, ground))
  placed(bar, { 0, H + 180, width, 40 }, what .. "bar")
  placed(title, { 0, H + (180 - title.h) / 2 - 5, width }, what .. "title")
  typed(title, thin, 80, "pattern", what .. "title")
  placed(tab, { (width - 100) / 2, H + 160, 100, 40 }, what .. "tab")
  expect_eq({ tab.corner_radius, tab.background }, { 90, bar.background }, what .. "tab")
  for _, toggle in ipairs(pane:all{ class = "UISwitch" }) do expect_eq(toggle.tint ~= nil, true, what .. "a switch") end

  -- The page about the extension, line below line.
  P.go(pane, { "Contact" })
  local page
  for _, view in ipairs(pane:all{ class = "UIView" }) do
    for _, child in ipairs(kids(pane, view)) do
      if child.text and child.text:match("^Version ") then page = view end
    end
  end
  expect_eq(page.background, "#ffffffff", what .. "the page's ground")
  local glyph, first, version, words, button = table.unpack(kids(pane, page))
  local top = 72
  placed(glyph, { (W - 40) / 2, top, 40, 40 }, what .. "glyph")
  expect(glyph.image and glyph.image:match("Pendix"), what .. "the glyph's picture")
  top = top + 40 + 12
  for i, line in ipairs{ { first, thin, 40, "pattern" }, { version, light, 15, "#808080ff" }, { words, light, 15, "#000000ff" } } do
    local label = line[1]
    placed(label, { (W - label.w) / 2, top }, what .. "line " .. i)
    typed(label, line[2], line[3], line[4], what .. "line " .. i)
    top = top + label.h + 12
  end
  expect(words.w <= math.min(W - 48, 420) and words.w > math.min(W - 48, 420) - 60, what .. "the words fill their width")
  placed(button, { W - 16 - button.w, 20, nil, 44 }, what .. "the button")
  P.back(pane)

  -- A colour card and what is on it.
  P.go(pane, { "Configuration", "Status Bar Icon", "Glow Color" })
  local cards = pane:find{ class = "cards" }
  local share = case[1] == "iPad Air" and 70 or 0
  local cw, correction = (case[7] or W) - share, case[1] == "iPad Air" and -32 or -2
  local hint
  for _, label in ipairs(pane:all{ tag = 4, class = "UILabel" }) do
    if label.text == "slide to choose a color" then hint = label end
  end
  placed(hint, { 0, (H - 150) / 2, cw, 30 }, what .. "hint")
  expect_eq({ hint.font, hint.font_size }, { light, 18 }, what .. "hint's type")
  local card, face
  for _, view in ipairs(pane:all{ class = "UIView" }) do
    if math.abs(view.h - 3 * H) < 0.01 then face = view end
    for _, child in ipairs(kids(pane, view)) do
      if child.tag == 2 and child.w == 1 then card = view end
    end
  end
  placed(face, { case[1] == "iPad Air" and 35 or 0, 0, cw, 3 * H }, what .. "card's face")
  expect_eq(face.corner_radius, 40, what .. "round corners")
  local ground_colour = pane:find{ class = "UITableView", visible = true }.background
  expect_eq(hint.text_color, card.background, what .. "the hint is cut out of the card")
  expect(card.background ~= nil, what .. "which has the page's colour")
  local preview = pane:find{ parent = cards, tag = 1 }
  placed(preview, { (correction + cw - 40) / 2, 30, 40, 40 }, what .. "preview")
  expect_eq({ preview.tint, preview.shadow_color, preview.shadow_radius, preview.shadow_opacity },
    { "#000000ff", "#0000ffff", 25, 1 }, what .. "glowing black glyph")
  for _ = 1, 3 do P.back(pane) end

  -- The sheet for a code.
  P.go(pane, { "Configuration", "Passcode Lock" })
  P.press(pane, "Change Passcode")
  local sheet = pane:find{ class = "PasscodeView" }
  expect_eq(sheet.background, "#ffffffff", what .. "the sheet is white")
  local parts = kids(pane, sheet)
  local below, label = sheet.h - 44, parts[6]
  expect_eq({ label.text, label.font, label.font_size }, { "Enter your new passcode", light, 16 }, what .. "the sheet's words")
  placed(label, { (sheet.w - label.w) / 2, (below + label.h) / 4 }, what .. "the sheet's words")
  for i = 1, 4 do
    local dash = parts[6 + i]
    expect(dash.image and dash.image:match("dash"), what .. "a dash")
    placed(dash, { label.x + (i - 1) * (label.w - dash.w) / 3, (below + dash.h) * 3 / 8 }, what .. "dash " .. i)
  end
  placed(parts[#parts], { sheet.w, sheet.h, 10, 10 }, what .. "the field is out of sight")
  P.no_harm(phone, pane)
end
