-- Counts on the icons: the home screen's own drawing in its own height, "999+" from a thousand on, and the colours of
-- the other extension where it is installed and on.
local P = require("panel")
local counts = { 1, 12, 999, 1000, 123456 }
local function opened(color_badges, ios)
  local apps = P.numbered(#counts)
  for i, count in ipairs(counts) do apps[i].badge = count end
  local phone = P.boot({}, { apps = apps, color_badges = color_badges, ios = ios })
  P.open(phone)
  return phone
end
local function each(phone, check)
  for i, count in ipairs(counts) do
    local badge = P.sub(phone, P.item(phone, P.app(i)), P.tag.badge)
    check(badge, phone:find{ parent = badge, class = "UILabel" }, count < 1000 and tostring(count) or "999+")
  end
end

for _, ios in ipairs{ "7.1", "8.1" } do
  for _, extension in ipairs{ false, { enabled = false } } do
    each(opened(extension, ios), function(badge, label, text)
      expect_eq({ badge.name, label.text }, { text, text }, "the count as text")
      expect_near(badge.h, 24, 0.01, text .. ": height")
      -- Round while the text leaves five points; else twelve points more than the text.
      expect(#text == 1 and badge.w == 24 or #text > 1 and badge.w > 24, text .. ": width")
      expect_near(badge.x + badge.w / 2, 60 - 4, 0.01, text .. ": centred near the icon's right edge")
      expect_near(badge.y, -8, 0.01, text .. ": over its top")
      P.near(label, { 0, 0, badge.w, 24 }, text .. ": the label fills it")
      expect_eq(label.hidden, true, text .. ": but the home screen's drawing is shown")
      expect_eq({ badge.children[1].class, badge.children[1].w }, { "UIImageView", badge.w }, text .. ": in full width")
      expect_eq({ badge.background, badge.border_width }, { nil, 0 }, text .. ": without a colour of its own")
    end)
  end
end
local colours = {}
for _, borders in ipairs{ true, false } do
  local phone = opened{ enabled = true, borders = borders }
  each(phone, function(badge, label, text)
    expect_eq({ label.hidden, #badge.children }, { false, 1 }, text .. ": the label is shown, nothing else")
    local red, green, blue, alpha = badge.background:match("^#(%x%x)(%x%x)(%x%x)(%x%x)$")
    expect_eq(alpha, "ff", text .. ": an opaque colour")
    colours[badge.background] = true
    if borders then
      expect_eq(badge.border_width, 1, text .. ": with a border")
      expect_eq(badge.border_color, label.text_color, text .. ": in the text's colour")
      expect(label.text_color == "#ffffffff" or label.text_color == "#000000ff", text .. ": black or white")
      local light = tonumber(red, 16) + tonumber(green, 16) + tonumber(blue, 16)
      if light > 600 then expect_eq(label.text_color, "#000000ff", text .. ": black on a light colour") end
      if light < 200 then expect_eq(label.text_color, "#ffffffff", text .. ": white on a dark colour") end
    else
      expect_eq({ badge.border_width, label.text_color }, { 0, "#ffffffff" }, text .. ": without borders white text")
    end
    expect_eq(badge.corner_radius, 12, text .. ": round ends")
  end)
  P.no_harm(phone)
end
local kinds = 0
for _ in pairs(colours) do kinds = kinds + 1 end
expect(kinds > 1, "applications have colours of their own")

-- Where the home screen has not drawn a badge yet, the usual height stands in.
local phone = P.boot({ badge = true, close = true }, { apps = P.numbered(2, { badge = 0, running = true }) })
P.open(phone)
P.long_press(phone, P.items(phone)[1])
P.near(P.sub(phone, P.items(phone)[1], P.tag.mark), { -6, -6, 20, 20 }, "close marks have their size without a badge")
