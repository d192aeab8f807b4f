-- A turned device: the keypad shrinks as far as it must, whole and on the screen, also when it is turned while the
-- keypad shows; its keys keep working.
local L = require("lock")

local function fits(phone, landscape, what)
  local screen = phone:find{ window = "overlay", class = "UIWindow", tag = 0 }
  local w, h = math.max(screen.w, screen.h), math.min(screen.w, screen.h)
  if not landscape then w, h = h, w end
  local keypad = L.face_view(phone, "keypad")
  expect_eq(L.panel(phone).h, keypad.h, what .. "the panel is as high as the keypad")
  for _, view in ipairs{ L.panel(phone), L.key(phone, 1), L.key(phone, 0), L.button(phone) } do
    local s = view.screen
    expect(s.x >= -0.01 and s.y >= -0.01 and s.x + s.w <= w + 0.01 and s.y + s.h <= h + 0.01,
      what .. "tag " .. view.tag .. " is on the screen")
  end
  return L.key(phone, 1).w
end

for _, case in ipairs{ { "iPhone 5", "7.1", 55, 33 }, { "iPhone 6 Plus", "8.1", 65, 53.311 } } do
  local device, ios, upright, turned = table.unpack(case)
  for _, settings in ipairs{
    { clear = true }, { rech = true, position = "middle" }, { rech = true, position = "bottom", ca = true },
  } do
    local what = device .. " " .. (settings.position or "top") .. ": "
    local phone = L.boot_locked(settings, { device = device, ios = ios })
    phone:run(L.ids[1])
    phone:settle()
    phone:rotate(3)
    phone:settle()
    phone:activator()
    phone:settle()
    expect_near(fits(phone, true, what), turned, 0.01, what .. "smaller keys")
    L.enter(phone, "1234")
    expect_eq(L.shown(phone), "list", what .. "the code works")
    phone:activator()
    phone:settle()

    -- Turned while it shows, to and fro.
    phone:rotate(1)
    phone:settle()
    phone:activator()
    phone:settle()
    L.enter(phone, "12")
    for _, step in ipairs{ { 3, turned }, { 1, upright }, { 4, turned }, { 3, turned }, { 1, upright } } do
      phone:rotate(step[1])
      phone:settle()
      phone:wait(0.5)
      expect_near(fits(phone, step[1] > 2, what .. "turned to " .. step[1] .. ", "), step[2], 0.01, what .. "the keys")
      L.nothing_shows(phone, what)
    end
    phone:rotate(4)
    phone:settle()
    phone:wait(0.5)
    expect_eq(L.entered(phone), "12", what .. "what was entered stays")
    L.enter(phone, "34")
    expect_eq(L.shown(phone), "list", what .. "the code works again")
    L.no_harm(phone)
  end
end

-- A keypad that leaves with its panel is not laid out any more.
do
  local phone = L.boot_locked({}, { device = "iPhone 5s" })
  L.open(phone)
  local side = L.key(phone, 5).w
  phone:activator()
  phone:wait(0.1)
  phone:rotate(3)
  expect_eq(L.key(phone, 5).w, side, "the keys keep their size")
  phone:settle()
  L.no_harm(phone)
end
