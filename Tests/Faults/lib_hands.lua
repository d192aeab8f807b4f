-- What the standard day looks at and does, so that each of its steps is a few lines.
local M = {}

M.ids = { "org.example.ada", "org.example.bob", "com.apple.mobiletimer" }
M.tags = { logo = 1, panel = 3, screen = 21, badge = 99, icon = 1, text = 100, ok = 102, mark = 1953, card = -19,
  ask = 44, finger = 45, keypad = 46 }
local ids, tags = M.ids, M.tags

local function overlay(phone) return phone:find{ window = "overlay", class = "UIWindow" } end
local function top(phone, tag) return phone:find{ parent = overlay(phone), tag = tag } end
local function panel(phone) return overlay(phone) and top(phone, tags.panel) end
local function strip(phone) return phone:find{ window = "overlay", class = "NewUIScrollView" } end
local function item(phone, id) return phone:find{ window = "overlay", name = id } end
local function sub(phone, view, tag) return view and phone:find{ parent = view, tag = tag } end
local function face(phone, tag) return phone:find{ parent = sub(phone, panel(phone), 1), tag = tag } end
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
local function place(phone)
  local i = phone:indicator()
  return { i.x + i.w / 2, i.y + i.h / 2 }
end
local function items(phone)
  local list = {}
  for _, view in ipairs(strip(phone).children) do
    if view.name and view.name ~= "" then list[#list + 1] = view end
  end
  table.sort(list, function(a, b) return a.x < b.x end)
  return list
end
local function names(phone)
  local list = {}
  for i, view in ipairs(items(phone)) do list[i] = view.name end
  return list
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
  for digit in digits:gmatch("%d") do
    phone:tap(assert(sub(phone, face(phone, tags.keypad), digit == "0" and 100 or tonumber(digit) * 10)))
  end
  phone:settle()
end

M.overlay = overlay
M.top = top
M.panel = panel
M.strip = strip
M.item = item
M.sub = sub
M.face = face
M.count = count
M.logged = logged
M.place = place
M.items = items
M.names = names
M.open = open
M.beside = beside
M.close = close
M.badges = badges
M.to_lock_screen = to_lock_screen
M.moves = moves
M.code = code

return M
