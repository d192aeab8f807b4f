-- Hundreds of openings and closings, with scrolling, swipes and questions in between, leave no object, view or timer
-- behind. The count may be given as the script's argument.
local P = require("panel")
local rounds = math.tointeger(args[1] or 200)
local function grows(what, settings, apps, between)
  local phone = P.boot(settings, { apps = apps })
  local function round(n)
    P.press_indicator(phone)
    phone:settle()
    if between then between(phone, n) end
    phone:tap(P.outside(phone))
    phone:settle()
    phone:wait(0.2) -- the follower's last tick
  end
  local wanted
  for n = 1, rounds do
    round(n)
    if n == 2 then
      phone:wait(1)
      wanted = phone:counters()
    end
  end
  phone:wait(1)
  local counters = phone:counters()
  expect_eq(counters.live, wanted.live, what .. ": live objects")
  expect_eq({ counters.timers, counters.views, counters.windows }, { wanted.timers, wanted.views, wanted.windows },
    what .. ": timers, views and windows")
  local total = 0
  for _, count in pairs(counters.live) do total = total + count end
  if args[1] then print(what, rounds .. " rounds", total .. " live objects", counters.views .. " views") end
  expect_eq(P.logged(phone, "<Pendix> Loading Pendix UI!"), rounds, what .. ": openings")
  P.closed(phone)
  P.no_harm(phone)
end

local clock = { { id = P.clock, name = "Clock", badge = 2 }, { id = P.app(1), name = "App 1", badge = 1200 } }
grows("badged", {}, clock)
local everything = { paging = true, ca = true, light = true, blur = true, glow = true, rech = true,
  position = "bottom" }
grows("everything on", everything, P.numbered(7))
if not args[1] then
  rounds = 20
  grows("used", { paging = true }, P.numbered(7), function(phone, n)
    phone:fling({ 160, 90 }, -150, 0, 0.15)
    phone:settle()
    local item = P.items(phone)[5]
    P.swipe_down(phone, item)
    phone:settle()
    P.long_press(phone, P.items(phone)[4])
    phone:tap(P.part(phone, n % 2 == 0 and P.tag.ok or P.tag.cancel))
    phone:settle()
    for i = 1, 7 do
      phone:badge(P.app(i), 0)
      phone:badge(P.app(i), i)
    end
  end)
  grows("marks", { close = true, badge = true }, P.numbered(5, { running = true }), function(phone)
    P.long_press(phone, P.items(phone)[1])
    phone:tap(P.sub(phone, P.items(phone)[2], P.tag.mark))
    phone:settle()
    for i = 1, 5 do
      phone:run(P.app(i))
      phone:home()
    end
  end)
end
