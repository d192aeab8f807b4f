-- The lock in pictures: its faces, a wrong code's shake, and unlocking with the code and with a finger.
--   pendix-sim run scenarios/lock_gallery.lua --out pictures
local badges = { { "com.apple.mobilemail", 3 }, { "com.apple.MobileSMS", 12 }, { "com.apple.facetime", 1 } }

local function open(settings)
  local all = { enable = true, pass = true, password = "1234", where = "every" }
  for key, value in pairs(settings) do all[key] = value end
  local phone = boot{ settings = all }
  for _, badge in ipairs(badges) do phone:badge(badge[1], badge[2]) end
  local i = phone:indicator()
  phone:tap{ i.x + i.w / 2, i.y + i.h / 2 }
  phone:settle()
  return phone
end
local function key(phone, digit)
  return phone:find{ parent = phone:find{ window = "overlay", tag = 46 }, tag = digit * 10 }
end
local function enter(phone, digits)
  for digit in digits:gmatch("%d") do phone:tap(key(phone, tonumber(digit))) end
end

for name, settings in pairs{
  ["keypad-dark"] = {}, ["keypad-light"] = { light = true }, ["keypad-letters"] = { clear = true },
  ["touch-id"] = { touchid = true, light = true }, ask = { ask = true },
} do
  open(settings):shot(name)
end

local phone = open{ clear = true }
enter(phone, "999")
phone:down(key(phone, 9)); phone:up()
phone:wait(0.2)
phone:filmstrip("wrong-code", 0.7, 8)
phone:settle()
enter(phone, "1234")
phone:wait(0.1)
phone:filmstrip("unlocking", 0.7, 6)

phone = open{ touchid = true }
phone:finger(1)
phone:filmstrip("finger", 0.6, 3)
phone:finger(3)
phone:filmstrip("match", 1.4, 7)
