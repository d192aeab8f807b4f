-- Who wants less motion sees the panel, its faces and its question fade in place, and one flash instead of a shake; who
-- wants nothing to shine through, stronger colours, bold or larger text gets that; and aids may come and go at any moment.
-- Before 8.0 only the size of text and VoiceOver can be asked for.
local P, L, S = require("panel"), require("lock"), require("speech")

-- Nothing of the panel but its alpha changes for so long.
local function stands_still(phone, view, seconds, what)
  local where, faint = nil, false
  for _ = 1, math.floor(seconds * 60) do
    local seen = view().screen
    where = where or seen
    expect_eq(seen, where, what .. " stands where it will be")
    faint = faint or (view().presented_alpha > 0.1 and view().presented_alpha < 0.9)
    phone:wait(1 / 60)
  end
  expect(faint, what .. " fades")
end

for _, ios in ipairs{ "7.1", "8.1" } do
  local still = ios ~= "7.1"
  local phone = P.boot({}, { ios = ios, reduce_motion = true })
  P.press_indicator(phone)
  local seed = P.panel(phone).screen.w
  expect_eq(seed > 200, still, ios .. ": it stands at once where motion can be asked for")
  if still then
    stands_still(phone, function() return P.panel(phone) end, 0.4, "the panel")
    phone:settle()
    P.long_press(phone, P.items(phone)[1])
    phone:down(P.middle(P.seen(phone, P.tag.cancel)))
    phone:wait(0.05)
    phone:up()
    stands_still(phone, function() return P.content(phone) end, 0.3, "what is left of the question")
    phone:settle()
    phone:down(P.outside(phone))
    phone:up()
    stands_still(phone, function() return P.panel(phone) end, 0.4, "the closing panel")
    phone:settle()
    P.closed(phone)
  end

  local locked = L.boot_locked({ touchid = still }, { ios = ios, reduce_motion = true, device = still and "iPhone 6" or "iPhone 5s" })
  L.open(locked)
  if still then
    locked:down(P.middle(L.part(locked, "finger", L.tags.to_keypad)))
    locked:wait(0.05)
    locked:up()
    stands_still(locked, function() return L.face_view(locked, "keypad") end, 0.3, "the keypad")
    locked:settle()
  end
  L.type(locked, "1111")
  local x, moved, flashes, filled = L.part(locked, "keypad", 1).x, false, 0, true
  for _ = 1, 120 do
    local dot = L.part(locked, "keypad", 1)
    local now = dot.background and dot.background:sub(-2) ~= "00"
    if now and not filled then flashes = flashes + 1 end
    filled, moved = now, moved or dot.x ~= x
    locked:wait(1 / 60)
  end
  expect_eq(moved, not still, ios .. ": the dots shake only where motion is not reduced")
  expect_eq(flashes, still and 1 or 0, ios .. ": one flash")
  L.enter(locked, "1234")
  expect_eq(L.shown(locked), "list", ios .. ": the lock works as ever")

  -- Solid, strong, bold.
  local function look(option, settings)
    local seen = L.boot_locked(settings or {}, { device = "iPhone 5s", ios = ios, [option] = true })
    L.open(seen)
    return seen
  end
  local solid = look("reduce_transparency", { blur = true })
  expect_eq(L.panel(solid).class, still and "UIView" or "_UIBackdropView", ios .. ": what the panel is made of")
  expect_eq(L.panel(solid).background, still and "#1a1a1aff" or nil, ios .. ": solid")
  expect_eq(L.top(solid, L.tags.screen).alpha, still and 0 or 1, ios .. ": the screen is covered instead of blurred")
  expect_eq(look("darker_colors"):find{ window = "overlay", tag = 50 }.border_width, still and 2 or 1, ios .. ": rings")
  expect_eq(L.part(look("bold_text", { clear = true }), "keypad", L.tags.title).font,
    still and "HelveticaNeue-Medium" or "HelveticaNeue-Light", ios .. ": texts")

  -- Larger names, up to what a cell holds; larger ones yet have two lines, and a higher panel.
  local height
  for _, size in ipairs{ { "XS", 11, 15 }, { "L", 12, 15 }, { "XL", 14, 17 }, { "XXXL", 18, 22 }, { "AX1", 20, 48 }, { "AX5", 20, 48 } } do
    local phone = P.boot({}, { ios = ios, text_size = size[1], apps = { { id = "a.b", name = "Game Center Extended", badge = 1 } } })
    P.open(phone)
    local name = phone:find{ inside = P.items(phone)[1], text = "Game Center Extended" }
    expect_eq(name.font_size, size[2], size[1] .. ": the name")
    expect_near(name.h, size[3], 1.5, size[1] .. ": its room")
    local bottom, panel = name.screen.y + name.screen.h, P.panel(phone).screen
    expect(bottom <= panel.y + panel.h, size[1] .. ": stands on the panel")
    height = height or panel.h
    expect(size[1]:find("AX") and panel.h > height or panel.h == height, size[1] .. ": the panel's height")
    P.no_harm(phone)
  end
end

-- VoiceOver and the others come and go while the panel opens, is dragged on, asks, and closes.
local phone = P.boot({ paging = true }, { apps = P.numbered(5) })
local names = { "voiceover", "reduce_motion", "reduce_transparency", "darker_colors", "bold_text" }
local function switch(on)
  for _, name in ipairs(names) do phone:aid(name, on) end
  phone:aid("text_size", on and "AX3" or "L")
end
P.press_indicator(phone)
phone:wait(0.2)
switch(true)
phone:settle()
expect_eq(S.heard(phone)[1], "App 5, 5 new", "what stands is heard")
P.slide(phone, P.items(phone)[1], 0, 30, 0.2)
switch(false)
phone:wait(0.1)
phone:up()
phone:settle()
expect_eq(P.ids(phone)[1], P.app(5), "the short drag came to nothing")
P.slide(phone, P.items(phone)[1], 0, 90, 0.3)
switch(true)
phone:up()
phone:settle()
expect_eq(P.ids(phone)[1], P.app(4), "the long one took it off")
expect_eq(S.focus(phone), "App 4, 4 new", "the focus is on the one in its place")
S.act(phone, "App 4", "Clear All")
switch(false)
S.press(phone, "Cancel")
switch(true)
expect(phone:escape(), "closed by the scrub")
phone:wait(0.2)
switch(false)
phone:settle()
P.closed(phone)
P.no_harm(phone)

-- The pane's switches keep their whole label beside the switch, as large as two lines let it be.
local words = {} -- of the sheet for a code, by size
for size, wanted in pairs{ L = { 17, 17 }, XXXL = { 23, 23 }, AX5 = { 24, 40 } } do
  local pane = settings_app{ device = "iPhone 5s", text_size = size, settings = { pass = true, password = "1234" } }
  pane:settle()
  pane:activate(S.reach(pane, "Configuration"))
  S.settle(pane)
  local label = pane:find{ text = "Light Appearance" }
  expect(label.font_size >= wanted[1] and label.font_size <= wanted[2], size .. ": the label's size")
  pane:activate(S.reach(pane, "Passcode Lock"))
  S.settle(pane)
  words[size] = pane:find{ text = "Enter Passcode" }.font_size
end
expect(words.L < words.XXXL and words.XXXL <= words.AX5, "the sheet's words grow with the others")
