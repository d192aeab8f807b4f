-- Helpers of the scenarios about the panel's lock and about what opens and closes the panel.
local M = require("overlay").extended(require("home"))

M.ids = { "org.example.ada", "org.example.bob", "org.example.cyd" }
M.names = { "Ada", "Bob", "Cyd" }

-- Three applications with badges, all running; the extension on.
function M.boot(settings, options)
  local all = { enable = true }
  for key, value in pairs(settings) do all[key] = value end
  local apps = {}
  for i, id in ipairs(M.ids) do apps[i] = { id = id, name = M.names[i], badge = i, running = true } end
  local o = { settings = all, apps = apps }
  for key, value in pairs(options or {}) do o[key] = value end
  return boot(o)
end

function M.boot_locked(settings, options)
  local all = { pass = true, password = "1234", where = "every" }
  for key, value in pairs(settings or {}) do all[key] = value end
  return M.boot(all, options)
end

local item = M.item
function M.item(phone, i) return item(phone, M.ids[i]) end

function M.tap_indicator(phone)
  M.press_indicator(phone)
  phone:settle()
end
-- Beside the panel, wherever it stands.
function M.tap_outside(phone)
  local screen = phone:find{ window = "home" }.screen
  phone:tap{ screen.w / 20, screen.h / 2 }
  phone:settle()
end

-- Opens the closed panel, by the indicator.
function M.open(phone)
  expect(not M.is_open(phone), "the panel is closed before it opens")
  M.tap_indicator(phone)
  expect(M.is_open(phone), "a tap on the indicator opens it")
end
function M.close(phone)
  M.tap_outside(phone)
  expect(not M.is_open(phone), "a tap outside closes it")
end

M.face_view, M.part_of_panel = M.face, M.part
function M.part(phone, face, tag) return M.child(M.face_view(phone, face), tag) end

-- What a person sees in the panel: "ask", "finger", "keypad" or "list".
function M.shown(phone)
  local content, shown = M.content(phone), nil
  for _, face in ipairs{ "keypad", "finger", "ask" } do
    local view = M.child(content, M.tags[face])
    if view and view.presented_alpha > 0.01 and view.x == 0 and view.y == 0 then shown = face end
  end
  return shown or M.strip(phone).presented_alpha > 0.99 and "list" or "nothing"
end

-- Types a code and waits for what comes of it.
function M.enter(phone, digits)
  M.type(phone, digits)
  phone:settle()
end
function M.button(phone) return M.part(phone, "keypad", M.tags.button) end
function M.title(phone, face) return M.part(phone, face, M.tags.title).text end
function M.touch_id_button(phone)
  return phone:find{ parent = M.face_view(phone, "keypad"), class = "UIButton", tag = 0 }
end

-- The digits that the dots hold, and which of the dots are filled.
function M.entered(phone)
  local face, digits, filled = M.face_view(phone, "keypad"), "", ""
  for i = 1, 4 do
    local dot = M.child(face, i)
    digits = digits .. (dot.name or "")
    filled = filled .. (dot.background and dot.background:sub(-2) ~= "00" and "x" or "-")
  end
  return digits, filled
end

function M.sounds(phone, id)
  local n = 0
  for _, event in ipairs(phone:events("sound")) do
    if event.id == id then n = n + 1 end
  end
  return n
end
M.click, M.vibration = 1104, 4095

-- What was asked of the fingerprint sensor, in order.
function M.sensor(phone)
  local said = {}
  for i, event in ipairs(phone:events("biometric")) do said[i] = event.what end
  return table.concat(said, " ")
end

-- How often the system's own implementation ran.
function M.ran(phone, class, selector)
  local n = 0
  for _, event in ipairs(phone:events("original")) do
    if event.class == class and event.selector == selector then n = n + 1 end
  end
  return n
end

-- Fails when an application's name or icon can be seen in the panel.
function M.nothing_shows(phone, what)
  for _, name in ipairs(M.names) do
    expect(phone:find{ window = "overlay", text = name, visible = true } == nil, what .. name .. "'s name does not show")
  end
  expect_eq(#phone:all{ inside = M.strip(phone), visible = true }, 0, what .. "nothing on the strip shows")
  local dots = phone:find{ parent = M.content(phone), tag = M.tags.dots }
  expect(not dots or #phone:all{ inside = dots, visible = true } == 0, what .. "no page dot shows")
end

return M
