-- What a locked panel was built as, it stays until it closes, whatever the settings say meanwhile.
local L = dofile("lib_lock.lua")

local function frame(view) return { view.x, view.y, view.w, view.h } end
local function look(phone)
  local views = { panel = frame(L.panel(phone)), content = frame(L.content(phone)), strip = frame(L.strip(phone)) }
  for i in ipairs(L.ids) do views[L.ids[i]] = frame(L.item(phone, i)) end
  return views
end

-- Cards or none, switched behind the keypad.
for _, device in ipairs{ "iPhone 5", "iPad Air 2" } do
  for _, cards in ipairs{ false, true } do
    local what = device .. (cards and " with cards: " or " without cards: ")
    local phone = L.boot({ ca = cards }, { device = device })
    L.open(phone)
    local free = look(phone)
    L.close(phone)
    phone:set{ pass = true, password = "1234", where = "every" }
    L.open(phone)
    phone:set("ca", not cards)
    L.enter(phone, "1234")
    expect_eq(look(phone), free, what .. "unlocks into the list that was built")
    expect(phone:find{ window = "overlay", text = L.names[1], visible = true }, what .. "which shows")
    L.close(phone)
    L.open(phone)
    expect_eq(L.shown(phone), "keypad", what .. "locked again")
    L.enter(phone, "1234")
    expect((look(phone).panel[4] ~= free.panel[4]), what .. "the next panel is the other kind")
    L.no_harm(phone)
  end
end

-- `touchid`, switched while the question shows.
for _, finger in ipairs{ false, true } do
  local phone = L.boot_locked{ ask = true, touchid = finger }
  local face = finger and "finger" or "keypad"
  L.open(phone)
  phone:set("touchid", not finger)
  phone:tap(L.part(phone, "ask", -2))
  phone:settle()
  expect_eq(L.shown(phone), face, face .. ": the face behind the question is the one that was built")
  expect_eq(L.panel(phone).h, L.face_view(phone, face).h, face .. ": the panel has its height")
  if finger then phone:finger(3) else L.type(phone, "1234") end
  phone:settle()
  expect_eq(L.shown(phone), "list", face .. ": and it takes what it asks for")
  L.no_harm(phone)
end

-- `light`, switched behind the keypad: what is typed stays readable.
for _, light in ipairs{ false, true } do
  local phone = L.boot_locked{ light = light }
  local ink = light and "#000000ff" or "#ffffffff"
  L.open(phone)
  phone:set("light", not light)
  L.enter(phone, "1")
  expect_eq(L.part(phone, "keypad", 1).background, ink, "a filled dot is in the keypad's ink")
  expect_eq(L.part(phone, "keypad", 1).border_color, ink, "like its border")
  L.no_harm(phone)
end
