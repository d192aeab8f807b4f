-- What the standard day looks at and does, so that each of its steps is a few lines.
local M = require("overlay").extended()

M.ids = { "org.example.ada", "org.example.bob", "com.apple.mobiletimer" }
local ids, overlay, panel, place = M.ids, M.overlay, M.panel, M.indicator_place
local function count(process, kind, field, value)
  local n = 0
  for _, event in ipairs(process:events(kind)) do
    if field == nil or event[field] == value then n = n + 1 end
  end
  return n
end
local function logged(phone, text)
  for _, line in ipairs(phone:log()) do
    if line:find(text, 1, true) then return true end
  end
  return false
end
-- Whichever way there is.
local function open(phone)
  if panel(phone) then return end
  if phone:indicator().view then phone:tap(place(phone)) else phone:activator() end
  phone:settle()
  if not panel(phone) then phone:activator() end
  phone:settle()
  assert(panel(phone), "there is no panel")
end
local function beside(phone)
  local window = overlay(phone)
  return { 5, window.h - 20 }
end
local function close(phone)
  if panel(phone) then phone:tap(beside(phone)) end
  phone:settle()
  if panel(phone) then phone:activator() end
  phone:settle()
  if phone:foreground() then phone:home() end
  phone:settle()
  phone:wait(0.2)
end
-- As at the start; each changes, whatever the step before has left of it.
local function badges(phone)
  for i, id in ipairs(ids) do
    phone:badge(id, 0)
    phone:badge(id, i)
  end
  phone:wait(0.5)
end
local function to_lock_screen(phone)
  phone:display(false)
  phone:settle()
  phone:display(true)
  phone:wait(0.5)
end
local function moves(phone)
  local before = phone:indicator().alpha
  for _ = 1, 5 do
    phone:wait(0.1)
    if phone:indicator().alpha ~= before then return true end
  end
  return false
end
local function code(phone, digits)
  M.type(phone, digits)
  phone:settle()
end

M.count, M.logged, M.open, M.beside, M.close = count, logged, open, beside, close
M.badges, M.to_lock_screen, M.moves, M.code = badges, to_lock_screen, moves, code

return M
