-- Somebody who has a phone: what they know of it, and the state in which they leave it in the evening.
local L = require("lock")
local P = {}

P.code = "1234"
P.apps = { "org.example.mail", "org.example.chat", "org.example.news", "org.example.calls", "org.example.games",
  "org.example.photos", "org.example.music", "org.example.maps" }
P.spare = "org.example.spare" -- nothing ever happens to it
-- Of numbers only these are seen, for the system keeps the pictures of some that it has drawn.
P.numbers = { 99, 100, 999, 1200 }
for n = 1, 24 do table.insert(P.numbers, n) end
-- What a person's settings are; evenings are judged with these.
P.usual = { enable = true, glow = true, tint = "cyan", password = P.code, pass = false, badge = false, hide = false, hide_t = false,
  close = false, paging = false, ca = false, blur = false, fast = false, light = false, back = false, b = false, newb = false,
  rech = false, where = "every", touchid = false, ask = false }

-- A device that is booted once, at midnight, and never again.
function P.new(device, ios)
  local apps = {}
  for i, id in ipairs(P.apps) do
    apps[i] = { id = id, name = id:match("[^.]*$"), folder = i == #P.apps and "Way" or nil, snapshot = true }
  end
  apps[#apps + 1] = { id = P.spare, name = "spare" }
  local options = { device = device, ios = ios, clock = "2015-03-01 00:00:00", settings = {}, apps = apps }
  for key, value in pairs(P.usual) do options.settings[key] = value end
  return { phone = boot(options), counts = {}, order = {}, done = {}, reaches = device:find("^iPhone 6") ~= nil }
end

-- What the person knows of the badges: how many, and which came last.
function P.badge(user, id, count)
  if count == (user.counts[id] or 0) then return end
  user.phone:badge(id, count)
  P.knows(user, id, count)
end
function P.one_more(user, id)
  local count = (user.counts[id] or 0) + 1
  P.badge(user, id, count > 24 and 1200 or count)
end
function P.knows(user, id, count)
  for i, other in ipairs(user.order) do
    if other == id then table.remove(user.order, i) end
  end
  user.counts[id] = count > 0 and count or nil
  if count > 0 then table.insert(user.order, 1, id) end
end

-- To the home screen, awake and upright, with nothing in front.
function P.go_home(user)
  local phone = user.phone
  phone:display(true)
  phone:unlock()
  phone:settle()
  phone:aid("voiceover", false)
  if user.reaches then phone:reachability(false) end
  phone:rotate(1)
  phone:settle()
  if L.is_open(phone) then phone:activator() end
  phone:settle()
  if phone:foreground() then phone:home() end
  phone:settle()
  phone:wait(6) -- a banner's time
end
function P.sleep(user)
  user.phone:display(false)
  user.phone:settle()
end

function P.set(user, changes)
  user.phone:set(changes)
  user.phone:wait(1.1) -- the home screen looks once a second
end

-- Opens the panel as the settings of the day ask for it; whether it is open, and shows its list.
function P.open(user)
  local phone = user.phone
  if L.is_open(phone) then L.close(phone) end
  if phone:indicator().view then L.press_indicator(phone) else phone:activator() end
  phone:settle()
  if not L.is_open(phone) then return false end
  if not phone:settings().pass then return true end
  local shown = L.shown(phone)
  if shown == "ask" then
    phone:tap(L.part(phone, "ask", -2))
    phone:settle()
    shown = L.shown(phone)
  end
  if shown == "finger" then
    phone:finger("match")
    phone:settle()
  elseif shown == "keypad" then
    L.enter(phone, P.code)
  end
  return L.shown(phone) == "list"
end
function P.close(user)
  local phone = user.phone
  if L.is_open(phone) then phone:tap(L.outside(phone)) end
  phone:settle()
  if L.is_open(phone) then phone:activator() end
  phone:settle()
end

-- The Settings application, on its first page; it goes on behind the home screen until somebody quits it.
function P.visit(user)
  if not user.pane then user.pane = user.phone:open_settings() end
  user.pane:settle()
  return user.pane
end

return P
