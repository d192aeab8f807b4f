-- Wherever the panel stands and whatever it shows, faces keep its anchor, and unlocking leaves the very panel
-- that opens without a lock.
local L = require("lock")

local function frame(view) return { view.x, view.y, view.w, view.h } end
local function look(phone)
  local views = { panel = frame(L.panel(phone)), content = frame(L.content(phone)), strip = frame(L.strip(phone)) }
  local dots = phone:find{ parent = L.content(phone), tag = L.tags.dots }
  if dots then views.dots = frame(dots) end
  for i in ipairs(L.ids) do views[L.ids[i]] = frame(L.item(phone, i)) end
  return views
end

local function anchored(phone, position, what)
  local panel, screen = L.panel(phone), phone:find{ window = "home" }.screen
  if position == "middle" then
    expect_near(panel.y, (screen.h - panel.h) / 2, 0.01, what .. "in the middle")
  elseif position == "bottom" then
    expect_near(panel.y + panel.h, screen.h - panel.x, 0.01, what .. "as far from below as from the side")
  else
    expect_near(panel.y, 30, 0.01, what .. "under the indicator")
  end
end

for _, device in ipairs{ "iPhone 4S", "iPhone 6", "iPad Air 2" } do
  for _, case in ipairs{
    {}, { paging = true }, { ca = true }, { ca = true, paging = true, amount = "2" }, { badge = true, fast = true },
    { rech = true, position = "top" }, { rech = true, position = "middle" }, { rech = true, position = "bottom" },
    { rech = true, position = "bottom", ca = true }, { rech = true, position = "middle", ask = true, light = true },
    { ask = true, touchid = true },
  } do
    local what = device .. " "
    for key, value in pairs(case) do what = what .. key .. "=" .. tostring(value) .. " " end
    local phone = L.boot(case, { device = device })
    L.open(phone)
    local free = look(phone)
    L.close(phone)

    phone:set{ pass = true, password = "1234" }
    L.open(phone)
    anchored(phone, case.position, what)
    L.nothing_shows(phone, what)
    if case.ask then
      phone:tap(L.part(phone, "ask", -2))
      phone:settle()
      anchored(phone, case.position, what .. "past the ask face ")
    end
    if L.face_view(phone, "finger") then
      local there = L.shown(phone) == "finger"
      for _ = 1, 2 do
        phone:tap(there and L.part(phone, "finger", 3) or
          phone:find{ parent = L.face_view(phone, "keypad"), class = "UIButton", tag = 0 })
        phone:settle()
        there = not there
        expect_eq(L.shown(phone), there and "finger" or "keypad", what .. "from face to face")
        anchored(phone, case.position, what .. "on the " .. L.shown(phone) .. " ")
      end
      if there then
        phone:tap(L.part(phone, "finger", 3))
        phone:settle()
      end
    end
    L.enter(phone, "1234")
    expect_eq(L.shown(phone), "list", what .. "unlocked")
    expect_eq(look(phone), free, what .. "everything stands as without a lock")
    -- The last page is off the screen.
    for i = case.paging and 2 or 1, 3 do
      expect(phone:find{ window = "overlay", text = L.names[i], visible = true }, what .. L.names[i] .. " shows")
    end
    -- The list is alive: an application opens.
    phone:tap(L.item(phone, 2))
    phone:settle()
    expect_eq(phone:foreground(), L.ids[2], what .. "a tap opens the application")
    L.no_harm(phone)
  end
end

-- The face that was passed leaves downwards by its own height.
do
  local phone = L.boot_locked()
  L.open(phone)
  local high = L.face_view(phone, "keypad").h
  L.type(phone, "1234")
  phone:wait(0.3)
  local leaving = L.face_view(phone, "keypad")
  expect_eq({ leaving.x, leaving.y, leaving.h }, { 0, high, high }, "where the keypad goes")
end

-- Closed while it unlocks, and opened again at once: the new panel is locked and whole.
local phone = L.boot_locked()
L.open(phone)
L.type(phone, "1234")
phone:wait(0.3)
expect_eq(L.logged(phone, "<Pendix> Pendix UI unlocked!"), 1, "unlocking")
phone:activator()
phone:wait(0.1)
phone:activator()
phone:settle()
expect_eq(L.shown(phone), "keypad", "locked again")
expect_eq(L.panel(phone).h, L.face_view(phone, "keypad").h, "at the keypad's height")
L.nothing_shows(phone, "opened again, ")
L.enter(phone, "1234")
expect_eq(L.shown(phone), "list", "and unlocks")
L.close(phone)
expect(#phone:all{ parent = phone:find{ window = "overlay", class = "UIWindow", tag = 0 } } == 2, "nothing is left")
L.no_harm(phone)
