-- What a phone does all day, again and again, leaves nothing behind: after the last round there are as many objects of
-- each class, timers, windows, views, gesture recognisers and blocks as after the second, and no observer was added.
--
-- Arguments: rounds; the activity, each of them without one.
local L = require("lock")
local to_lock_screen = require("hands").to_lock_screen
local rounds = math.tointeger(args[1] or 30)

local function type_code(phone)
  if L.face_view(phone, "keypad") then L.enter(phone, "1234") end
end
-- The pages of the pane that make the most: tables, cards, the sheet for a code.
local function visit_settings(phone)
  local pane = phone:open_settings()
  pane:settle()
  for _, path in ipairs{ { "Contact" }, { "Configuration", "Passcode Lock" } } do
    for _, label in ipairs(path) do
      pane:open(label)
      pane:settle()
    end
    for _ = 1, #path do
      if path[1] == "Contact" then pane:press("Cancel") else pane:back() end
      pane:settle()
    end
  end
  pane:toggle("Enable")
  pane:settle()
  pane:toggle("Enable")
  pane:settle()
  expect_eq(#pane:events("crash"), 0, "Settings lives")
  phone:wait(1)
end

local locked = { pass = true, password = "1234", where = "every", clear = true }
local locked_with_finger = { pass = true, password = "1234", where = "every", touchid = true, ask = true }
-- name = { settings, what is done in a round, more options }; `slow` ones get a fifth of the rounds.
local activities = {
  ["open and close"] = { {}, function(phone)
    L.open(phone)
    L.close(phone)
  end },
  ["open and close with cards, pages and Reachability"] = { { ca = true, paging = true, rech = true, blur = true },
    function(phone)
      L.open(phone)
      phone:reachability(true)
      phone:wait(0.5)
      phone:reachability(false)
      phone:wait(0.5)
      phone:activator()
      phone:settle()
    end },
  ["the code, wrong and right"] = { locked, function(phone)
    L.tap_indicator(phone)
    L.enter(phone, "9999")
    phone:settle()
    type_code(phone)
    L.close(phone)
  end },
  ["Touch ID failing, then matching"] = { locked_with_finger, function(phone, n)
    L.tap_indicator(phone)
    phone:tap(L.part(phone, "ask", -2))
    phone:settle()
    for _, event in ipairs{ 1, 9, 0, 1, 5, 0, 1, 10 } do
      phone:finger(event)
      phone:settle()
    end
    if n % 2 == 0 then phone:finger(3) end
    phone:settle()
    L.close(phone)
  end },
  ["display, lock screen, unlock"] = { { where = "everyoff", pass = true, password = "1234" }, function(phone)
    L.tap_indicator(phone)
    to_lock_screen(phone)
    phone:activator()
    phone:settle()
    phone:unlock()
    phone:settle()
    phone:lock()
    phone:settle()
    phone:lock()
    phone:unlock()
    phone:settle()
  end, { passcode = true } },
  ["turn, closed and open"] = { { paging = true }, function(phone)
    for _, open in ipairs{ false, true } do
      if open then L.open(phone) end
      for _, orientation in ipairs{ 3, 4, 1 } do
        phone:rotate(orientation)
        phone:settle()
        phone:wait(0.3)
      end
    end
    phone:activator()
    phone:settle()
  end },
  ["badges come and go, pulsing and marked"] = { { glow = true, tint = "green", hide_t = true, b = true, newb = true },
    function(phone)
      for _, count in ipairs{ 0, 5, 0, 1200, 1 } do
        for _, id in ipairs(L.ids) do phone:badge(id, count) end
        phone:wait(0.7)
      end
      phone:restyle()
    end },
  ["banners"] = { {}, function(phone)
    L.open(phone)
    phone:banner("Hello")
    phone:settle()
    phone:wait(6)
  end },
  ["applications, switcher and two clicks"] = { { badge = true, close = true }, function(phone)
    for i, id in ipairs(L.ids) do
      phone:run(id)
      if i == 2 then phone:home_twice() end
      phone:settle()
      phone:home()
      phone:settle()
    end
    phone:home_twice()
    phone:settle()
    phone:home()
    phone:settle()
  end },
  ["settings change"] = { { glow = true }, function(phone)
    for _, change in ipairs{ { hide = true }, { hide = false }, { badge = true }, { badge = false }, { light = true },
      { light = false, glow = false }, { glow = true } } do
      phone:set(change)
      phone:wait(1)
    end
  end },
  ["scrolled, swiped and asked"] = { { paging = true }, function(phone, n)
    L.open(phone)
    phone:fling({ 160, 90 }, -150, 0, 0.15)
    phone:settle()
    L.swipe_down(phone, L.items(phone)[3])
    phone:settle()
    L.long_press(phone, L.items(phone)[2])
    phone:tap(L.part_of_panel(phone, n % 2 == 0 and L.tags.ok or L.tags.cancel))
    phone:settle()
    for i, id in ipairs(L.ids) do
      phone:badge(id, 0)
      phone:badge(id, i)
    end
    L.close(phone)
  end, { device = "iPhone 5s" } },
  ["close marks"] = { { close = true, badge = true }, function(phone)
    L.open(phone)
    L.long_press(phone, L.items(phone)[1])
    phone:tap(L.sub(phone, L.items(phone)[2], L.tags.mark))
    phone:settle()
    for _, id in ipairs(L.ids) do
      phone:run(id)
      phone:home()
      phone:settle()
    end
    if L.is_open(phone) then L.close(phone) end
  end },
  ["Settings opened and closed"] = { {}, visit_settings, slow = true },
}

-- Only when it is asked for, to see that growth is noticed.
local proof = { {}, function(phone, n)
  phone:badge(("com.apple.mobile%s"):format(({ "mail", "phone", "timer", "cal", "safari" })[n % 5 + 1]), 1)
end, { apps = { { id = "com.apple.mobilemail" }, { id = "com.apple.mobilephone" }, { id = "com.apple.mobiletimer" },
  { id = "com.apple.mobilecal" }, { id = "com.apple.mobilesafari" } } } }

local function tally(phone)
  phone:activator() -- whatever the last picture of the status bar keeps is kept either way
  phone:settle()
  phone:activator()
  phone:settle()
  phone:wait(2)
  return phone:counters()
end

local function grow(name, activity)
  local options = activity[3] or {}
  local phone = L.boot(activity[1], options)
  local wanted
  local count = activity.slow and math.max(4, rounds // 5) or rounds
  for n = 1, count do
    activity[2](phone, n)
    if n == 2 then wanted = tally(phone) end
  end
  local got = tally(phone)
  for class, live in pairs(got.live) do
    if live ~= wanted.live[class] then
      expect(false, ("%s: %d objects of class %s, then %d"):format(name, wanted.live[class] or 0, class, live))
    end
  end
  for _, kind in ipairs{ "timers", "windows", "views", "blocks", "observers" } do
    expect_eq(got[kind], wanted[kind], name .. ": " .. kind)
  end
  L.no_harm(phone)
  local total = 0
  for _, live in pairs(got.live) do total = total + live end
  print(("%-50s %5d rounds %6d objects %4d blocks"):format(name, count, total, got.blocks))
end

if args[2] == "proof" then grow("proof", proof) end
for name, activity in pairs(activities) do
  if args[2] == nil or args[2] == name then grow(name, activity) end
end
