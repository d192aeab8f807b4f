-- What a person does with a phone, each with how often beside the others: { name, weight, what is done }. Every habit
-- begins and ends awake on the home screen, whatever the settings of the day are.
local L, P, pane_hands, item_of = require("lock"), require("person"), require("pane"), require("overlay").item

local function chance(percent) return math.random(100) <= percent end
local function any(list) return list[math.random(#list)] end
-- What a finger can reach of the list without scrolling.
local function on_screen(phone)
  local list, strip = {}, L.strip(phone).screen
  for _, item in ipairs(L.items(phone)) do
    local middle = item.screen.x + item.screen.w / 2
    if middle > strip.x + 10 and middle < strip.x + strip.w - 10 then list[#list + 1] = item end
  end
  return list
end
local function pause(user, most) user.phone:wait(user.hasty and 1 or math.random(most)) end
-- Whoever opens an application reads what is new in it.
local function read(user, id)
  pause(user, 90)
  P.badge(user, id, 0)
end
local function home(user)
  user.phone:home()
  user.phone:settle()
end

local function news(user)
  for _ = 1, math.random(3) do
    local id = any(P.apps)
    if chance(15) then P.badge(user, id, any(P.numbers)) else P.one_more(user, id) end
    user.phone:wait(math.random(10))
  end
end

local function look(user)
  if P.open(user) and chance(50) then
    user.phone:fling(L.strip(user.phone), chance(50) and -150 or 150, 0, 0.15)
    user.phone:settle()
  end
  P.close(user)
end

local function open_from_panel(user)
  local items = P.open(user) and on_screen(user.phone) or {}
  if #items == 0 then return P.close(user) end
  local item = any(items)
  user.phone:tap(item)
  user.phone:settle()
  local front = user.phone:foreground()
  expect(front == item.name, "a tap on " .. item.name .. " opens it")
  if front then read(user, front) end
  home(user)
end

-- By a swipe off the strip, or by its close mark: the badge goes, or, where running ones are listed, the application.
local function take_off(user)
  local phone, items = user.phone, P.open(user) and on_screen(user.phone) or {}
  if #items == 0 then return P.close(user) end
  local item, settings = any(items), phone:settings()
  if settings.close then
    L.long_press(phone, item)
    phone:tap(L.sub(phone, phone:again(item), L.tags.mark))
  else
    (chance(50) and L.swipe_down or L.swipe_up)(phone, item)
  end
  phone:settle()
  expect(not item_of(phone, item.name), item.name .. " is taken off")
  if not settings.badge then P.knows(user, item.name, 0) end
  if settings.close then home(user) end -- ends the mode of the marks
  P.close(user)
end

local function clear_all(user)
  local phone, items = user.phone, P.open(user) and on_screen(user.phone) or {}
  local settings = phone:settings()
  if #items == 0 or settings.close then return P.close(user) end
  local listed, yes = L.listed(phone), chance(30)
  L.long_press(phone, any(items))
  local buttons = phone:all{ parent = L.content(phone), tag = yes and L.tags.ok or L.tags.cancel }
  phone:tap(buttons[#buttons]) -- of several the one in front
  phone:settle()
  phone:wait(1)
  if yes and not settings.badge then
    for _, id in ipairs(listed) do P.knows(user, id, 0) end
  end
  P.close(user)
end

local function use_application(user)
  local id = any(P.apps)
  user.phone:run(id)
  user.phone:settle()
  read(user, id)
  if chance(25) then
    user.phone:home_twice()
    user.phone:settle()
    if L.is_open(user.phone) then P.close(user) end
  end
  if user.phone:foreground() then home(user) end
end

local function banner(user)
  if chance(40) then P.open(user) end
  user.phone:banner("Are you there?")
  user.phone:wait(math.random(1, 7))
  P.close(user)
end

local function turn(user)
  if chance(50) then P.open(user) end
  for _ = 1, math.random(3) do
    user.phone:rotate(math.random(4))
    user.phone:settle()
    user.phone:wait(0.5)
  end
  user.phone:rotate(1)
  user.phone:settle()
  user.phone:wait(0.5)
  P.close(user)
end

local function reach(user)
  if not user.reaches then return end
  if chance(60) then P.open(user) end
  user.phone:reachability(true)
  user.phone:wait(math.random(9)) -- after eight it ends by itself
  user.phone:reachability(false)
  user.phone:settle()
  P.close(user)
end

local function listen(user)
  local phone = user.phone
  phone:aid("voiceover", true)
  local opened = P.open(user)
  local spoken = phone:spoken("overlay")
  if opened then expect(#spoken > 0, "something is heard of the panel") end
  if opened and chance(50) then phone:scroll_page("left") end
  phone:escape()
  phone:settle()
  phone:aid("voiceover", false)
  P.close(user)
end

local function by_gesture(user)
  user.phone:activator()
  user.phone:settle()
  user.phone:wait(math.random(5))
  P.close(user)
end

-- Fingers and codes that are wrong, then the button.
local function locked_out(user)
  local phone = user.phone
  if phone:indicator().view then L.press_indicator(phone) end
  phone:settle()
  if L.is_open(phone) and L.shown(phone) == "keypad" then
    L.enter(phone, "9999")
    phone:settle()
  end
  for _, event in ipairs{ "down", "no_match", "up" } do phone:finger(event) end
  phone:settle()
  P.close(user)
end

local function lock_screen(user)
  local phone = user.phone
  if chance(30) then P.open(user) end
  phone:lock()
  phone:settle()
  pause(user, 30)
  phone:display(true)
  phone:settle()
  if chance(40) then
    phone:activator()
    phone:settle()
    P.close(user)
  end
  phone:unlock()
  phone:settle()
end

local pages = { -- of Settings { "Configuration" }, { "Configuration", "Reachability" }, { "Configuration", "Apps" },
  { "Configuration", "Status Bar Icon" }, { "Configuration", "Passcode Lock" }, { "Contact" },
  { "Configuration", "Status Bar Icon", "Glow Color" }, { "Configuration", "Indeterminate Badges" } }
-- A page, back again, and a switch there and back; the home screen hears of it meanwhile.
local function visit_page(user, path)
  local pane = P.visit(user)
  pane_hands.go(pane, path)
  if pane:sheet() then pane_hands.type(pane, P.code) end -- what locks is itself behind the code
  pause(user, 20)
  for _ = 1, #path do
    if path[1] == "Contact" then pane_hands.press(pane, "Cancel") else pane_hands.back(pane) end
  end
  pane_hands.go(pane, { "Configuration" })
  local switch = any{ "Fast Animations", "Light Appearance", "Blur Background" }
  for _ = 1, 2 do
    pane_hands.toggle(pane, switch)
    pane:wait(math.random(3))
  end
  pane_hands.back(pane)
end
local function visit_settings(user) visit_page(user, any(pages)) end
local tastes = { { ca = true }, { ca = false }, { paging = true }, { paging = false }, { blur = true }, { blur = false },
  { light = true }, { light = false }, { close = true }, { close = false }, { badge = true }, { badge = false },
  { pass = true, where = "every" }, { pass = true, where = "everyoff", ask = true }, { pass = true, touchid = true },
  { pass = false, touchid = false, ask = false, where = "every" }, { b = true, newb = true }, { b = false, newb = false },
  { rech = true, position = "top" }, { rech = true, position = "middle" }, { rech = true, position = "bottom" },
  { rech = false }, { fast = true }, { fast = false }, { glow = false }, { glow = true, tint = "red" },
  { glow = true, tint = "green" }, { hide_t = true }, { hide_t = false } }
local function new_taste(user) P.set(user, any(tastes)) end

local function new_style(user)
  user.phone:restyle()
  user.phone:wait(1)
end

local habits = { { "news come", 30, news }, { "a look at the panel", 14, look }, { "an application from the panel", 8, open_from_panel },
  { "one taken off", 6, take_off }, { "all cleared, or not", 3, clear_all }, { "an application", 14, use_application },
  { "a banner", 5, banner }, { "turned", 4, turn }, { "Reachability", 3, reach }, { "VoiceOver", 2, listen },
  { "Activator", 3, by_gesture }, { "locked out", 2, locked_out }, { "the lock screen", 5, lock_screen },
  { "Settings", 2, visit_settings }, { "another setting", 4, new_taste }, { "another style of the status bar", 3, new_style } }
local whole = 0
for _, habit in ipairs(habits) do whole = whole + habit[2] end

-- All that a person does, once, in every look that the panel can have: what is made with the first use and kept is there then.
local function everything(user)
  user.hasty = true
  for _, number in ipairs(P.numbers) do P.badge(user, P.apps[1], number) end
  for _, locked in ipairs{ true, false } do
    P.set(user, { pass = locked })
    for _, path in ipairs(pages) do visit_page(user, path) end
  end
  for _, taste in ipairs(tastes) do
    P.set(user, taste)
    for _, id in ipairs(P.apps) do P.one_more(user, id) end
    for _, habit in ipairs{ look, take_off, clear_all, turn, lock_screen, use_application, locked_out } do habit(user) end
  end
  user.hasty = false
end

local H = {}
local function practise(user, habit)
  habit[3](user)
  user.done[habit[1]] = (user.done[habit[1]] or 0) + 1
end
function H.one(user)
  local at = math.random(whole)
  for _, habit in ipairs(habits) do
    at = at - habit[2]
    if at <= 0 then return practise(user, habit) end
  end
end
function H.each(user)
  everything(user)
  for _, habit in ipairs(habits) do practise(user, habit) end
end
return H
