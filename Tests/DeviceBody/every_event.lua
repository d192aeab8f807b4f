-- What happens and what stands on the screen while a panel is used in many ways, as text with every digit: for two
-- bodies to be compared line by line. What a running interface would round away shows here.
local P = require("panel")

local function digits(value)
  if math.type(value) ~= "float" then return tostring(value) end
  return string.format("%.17g", value)
end

local function text(value)
  if type(value) ~= "table" then return digits(value) end
  local parts = {}
  for key, item in pairs(value) do parts[#parts + 1] = tostring(key) .. "=" .. text(item) end
  return "{" .. table.concat(parts, " ") .. "}"
end

local fields = { "class", "tag", "name", "x", "y", "w", "h", "screen", "alpha", "presented_alpha", "hidden", "interactive", "text",
  "font", "font_size", "text_color", "background", "tint", "corner_radius", "border_width", "border_color", "shadow_opacity",
  "shadow_radius", "image", "title", "scroll", "transform", "z", "gestures", "animations" }

local function write_view(view, depth)
  local parts = {}
  for _, field in ipairs(fields) do
    if view[field] ~= nil then parts[#parts + 1] = field .. " " .. text(view[field]) end
  end
  print(string.rep(" ", depth) .. table.concat(parts, " "))
  for _, child in ipairs(view.children) do write_view(child, depth + 1) end
end

local function look(phone, what)
  print("== " .. what .. " at " .. digits(phone:now()))
  print(text(phone:indicator().alpha) .. " " .. tostring(phone:indicator().image))
  local overlay = P.overlay(phone)
  if overlay then write_view(overlay, 0) end
end

local function use(device, ios, settings)
  print("==== " .. device .. " " .. ios)
  local phone = P.boot(settings, { device = device, ios = ios, apps = P.numbered(5, { running = true }) })
  phone:wait(1.3)
  look(phone, "pulsing")
  phone:tap(phone:indicator().view)
  for i = 1, 4 do
    phone:wait(0.11)
    look(phone, "opening " .. i)
  end
  phone:settle()
  phone:drag(P.strip(phone), -70, 3, 0.4)
  look(phone, "scrolled")
  P.long_press(phone, P.items(phone)[1])
  phone:settle()
  look(phone, "marked")
  phone:badge(P.app(2), 7)
  phone:badge(P.app(3), 0)
  look(phone, "badges changed")
  phone:rotate(3)
  phone:settle()
  look(phone, "turned")
  phone:rotate(1)
  phone:settle()
  phone:home()
  phone:wait(0.2)
  look(phone, "closing")
  phone:settle()
  look(phone, "closed")
  phone:lock()
  phone:display(true)
  phone:unlock()
  phone:wait(2)
  for _, event in ipairs(phone:events()) do print(text(event)) end
  P.no_harm(phone)
end

use("iPhone 4S", "7.0", { close = true })
use("iPhone 6", "8.1", { ca = true, position = "bottom", rech = true })
use("iPhone 6 Plus", "8.3", { paging = true, badge = true, glow = true })
use("iPad Air 2", "8.1", { light = true, blur = true, back = true })
