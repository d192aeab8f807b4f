-- The colour cards: they go round both ways, begin at the stored colour, show it on a preview, and store nothing until
-- it is applied; what is stored then is what is seen. They follow one another without a gap.
local P = require("pane")

local icon = { "Configuration", "Status Bar Icon", "Glow Color" }
local mark = { "Configuration", "Indeterminate Badges", "Mark Color" }
local names = { "red", "orange", "yellow", "green", "cyan", "blue", "magenta", "purple", "brown", "gray", "black", "white" }
local rgba = { red = "#ff0000ff", orange = "#ff8000ff", yellow = "#ffff00ff", green = "#00ff00ff", cyan = "#00ffffff",
  blue = "#0000ffff", magenta = "#ff00ffff", purple = "#800080ff", brown = "#996633ff", gray = "#808080ff",
  black = "#000000ff", white = "#ffffffff" }

local function preview(pane, tag) return pane:find{ parent = pane:find{ class = "cards" }, tag = tag } end
local function shown(pane, path)
  if path == icon then return preview(pane, 1).shadow_color end
  return preview(pane, 2).tint
end

local function swipe(pane, direction)
  pane:swipe(direction)
  P.settle(pane)
end

local function apply(pane)
  P.press(pane, "Apply")
  expect_eq(pane:alert(), { title = "Color Changed", message = "The new color appears with the next pulse or mark.",
    buttons = { "OK" } }, "what is said")
  P.press(pane, "OK")
end

-- All the way round, and the other way round.
for _, case in ipairs{ { icon, "tint" }, { mark, "colors" } } do
  local path, key = case[1], case[2]
  local other = key == "tint" and "colors" or "tint"
  local phone, pane = P.start{ [other] = "brown" }
  P.go(pane, path)
  expect_eq(shown(pane, path), rgba.red, key .. ": red when nothing is stored")
  local blink = pane:find{ class = "UILabel", tag = 4, text = "slide to choose a color" }.animations[1]
  expect_eq({ blink.keypath, blink.repeats }, { "opacity", math.huge }, key .. ": the hint blinks on and on")
  for i = 1, #names do
    swipe(pane, "left")
    local name = names[i % #names + 1]
    expect_eq(shown(pane, path), rgba[name], key .. ": the preview follows, " .. name)
  end
  for i = #names, #names - 2, -1 do
    swipe(pane, "right")
    expect_eq(shown(pane, path), rgba[names[i]], key .. ": back from red comes " .. names[i])
  end
  expect_eq(phone:settings()[key], nil, key .. ": nothing is stored by swiping")
  apply(pane)
  expect_eq(phone:settings(), { [key] = "gray", [other] = "brown", hasTouchID = "1" }, key .. ": the one key")
  P.back(pane)
  P.go(pane, { path[3] })
  expect_eq(shown(pane, path), rgba.gray, key .. ": begins at what is stored")
  P.no_harm(phone, pane)
end

-- Every name is stored under its own name.
do
  local phone, pane = P.start{ tint = "white" }
  P.go(pane, icon)
  for _, name in ipairs(names) do
    swipe(pane, "left")
    apply(pane)
    expect_eq(phone:settings().tint, name, "stored as " .. name)
  end
end

-- What is not in the list opens on red; applying without a swipe stores what is shown, on a page that is opened after
-- another one too.
for _, stored in ipairs{ "Red", "clear", "", "pink", 7, true, { 1 }, "blue" } do
  local phone, pane = P.start{ tint = stored }
  P.go(pane, icon)
  local name = stored == "blue" and "blue" or "red"
  expect_eq(shown(pane, icon), rgba[name], string.format("stored is %s", stored))
  apply(pane)
  expect_eq(phone:settings().tint, name, "without a swipe")
  swipe(pane, "left")
  for _ = 1, 2 do P.back(pane) end
  P.go(pane, { mark[2], mark[3] })
  expect_eq(shown(pane, mark), rgba.red, "the other page has nothing stored")
  apply(pane)
  expect_eq(phone:settings().colors, "red", "what was swiped to on another page does not count")
  P.no_harm(phone, pane)
end

-- While a finger pulls them, one card begins where the one before ends, from edge to edge of the screen and down to its
-- bottom.
for _, profile in ipairs{ { "iPhone 4S", "7.1", 320, 480 }, { "iPhone 6", "8.1", 375, 667 }, { "iPhone 6 Plus", "8.3", 414, 736 } } do
  local device, ios, width, height = table.unpack(profile)
  for orientation, w, h in pairs{ [1] = { width, height }, [3] = { height, width } } do
    local _, pane = P.start({ tint = "green" }, { device = device, ios = ios })
    P.go(pane, icon)
    if orientation ~= 1 then
      pane:rotate(orientation)
      pane:wait(1)
    end
    w, h = table.unpack(w)
    for _, way in ipairs{ -1, 1 } do
      pane:down{ w / 2, h - 60 }
      for step = 1, 8 do
        pane:move(w / 2 + way * step * w / 20, h - 60)
        pane:wait(0.05)
        local what = string.format("%s, held %d, %d steps: ", device, orientation, way * step)
        local faces = {}
        for _, view in ipairs(pane:all{ class = "UIView", visible = true }) do
          if view.corner_radius == 40 then faces[#faces + 1] = view.screen end
        end
        table.sort(faces, function(a, b) return a.x < b.x end)
        expect_eq(#faces, step == 1 and #faces or 2, what .. "two cards are in sight")
        expect(faces[1].x <= 0 and faces[#faces].x + faces[#faces].w >= w, what .. "they reach from edge to edge")
        for i, face in ipairs(faces) do
          expect(face.y + face.h >= h, what .. "and down to the bottom")
          if i > 1 then expect_near(face.x, faces[i - 1].x + faces[i - 1].w, 0.01, what .. "a gap between the cards") end
        end
      end
      if way < 0 then pane:shot(string.format("%s-%d", device:gsub(" ", ""), orientation)) end
      pane:up()
      pane:wait(1)
    end
    P.no_harm(pane)
  end
end

-- The icon's preview fades out and in without end, and goes on when the page comes back into sight.
do
  local phone, pane = P.start{ tint = "green" }
  P.go(pane, icon)
  local low, high = 1, 0
  local function watch(seconds)
    low, high = 1, 0
    for _ = 1, seconds * 5 do
      pane:wait(0.2)
      local alpha = preview(pane, 1).presented_alpha
      low, high = math.min(low, alpha), math.max(high, alpha)
    end
    return low < 0.1 and high > 0.9
  end
  expect(watch(5), "it fades out and in")
  expect(watch(5), "again and again")
  P.back(pane)
  P.go(pane, { "Glow Color" })
  expect(watch(5), "and when the page is entered again")
  expect_eq(preview(pane, 1).tint, "#000000ff", "the icon itself is black")
  P.no_harm(phone, pane)
end
