-- A phone that is used for a month, day by day by chance, works every evening as on the first and has not grown.
--
-- Arguments: days (30); seed (1); a device (iPhone 6) and its version (8.1); "proof" leaves the phone alone and plants
-- growth, to see it noticed.
-- A line for each hour tells that it is over and when by the device's clock, for whoever watches the processes.
local L, P, habits = require("lock"), require("person"), require("habits")
local days, seed = math.tointeger(args[1] or 30), math.tointeger(args[2] or 1)
local hour, week, proof = 3600, 7, args[5] == "proof"
math.randomseed(seed)

local user = P.new(args[3] or "iPhone 6", args[4] or "8.1")
local phone = user.phone
local function wait_until(time)
  if time > phone:now() then phone:wait(time - phone:now()) end
end

-- Takes the phone up, does a few things, and puts it away.
local function use()
  P.go_home(user)
  for _ = 1, math.random(2, 8) do habits.one(user) end
  P.sleep(user)
end

-- How often the phone is taken up in an hour of the day, at most.
local function uses_in(of_day)
  if of_day < 6 or proof then return 0 end
  return of_day < 9 and 3 or of_day < 17 and 2 or of_day < 23 and 3 or 1
end

local function pass_hour(start, of_day)
  local count = uses_in(of_day)
  for i = 1, count > 0 and math.random(0, count) or 0 do
    wait_until(start + hour * (i - 1) / count + math.random(60))
    use()
  end
  if of_day < 6 and math.random(3) == 1 then P.one_more(user, P.apps[1]) end
  wait_until(start + hour)
end

-- What a user sees in the evening.
local function judge(day)
  local what = "day " .. day .. ": "
  P.go_home(user)
  P.set(user, P.usual)
  P.sleep(user) -- a pulse that was switched on begins with the next badge, or when the display turns on
  phone:wait(1)
  P.go_home(user)
  phone:run(P.apps[3])
  expect_eq(phone:foreground(), P.apps[3], what .. "an application opens")
  phone:settle()
  phone:home()
  phone:settle()
  expect_eq(phone:foreground(), nil, what .. "the home button leaves it")

  L.open(phone)
  local listed, known = L.listed(phone), {}
  for i, id in ipairs(user.order) do known[i] = id end
  if user.shuffled then -- a home screen that started again lists them in its own order
    table.sort(listed)
    table.sort(known)
  end
  expect_eq(listed, known, what .. "the panel lists what has badges, the last ones first")
  for _, item in ipairs(L.items(phone)) do
    local count = user.counts[item.name] or 0
    expect_eq(L.sub(phone, item, L.tags.badge).name, count > 999 and "999+" or tostring(count), what .. item.name .. "'s number")
  end
  L.close(phone)
  expect_eq(#L.overlay(phone).children, 2, what .. "nothing stays behind")
  expect_eq(L.overlay(phone).interactive, false, what .. "the home screen gets its touches")
  expect_eq(L.glow(phone) ~= nil, #known > 0, what .. "the indicator glows while something is new")
  expect_eq(L.pulses(phone), #known > 0, what .. "and pulses")
  L.no_harm(phone)
  expect_eq(#phone:events("warning"), 0, what .. "no warning")
end

-- The same state every evening, so that all that is left of a day shows.
local function tidy()
  for _, id in ipairs(P.apps) do P.badge(user, id, 0) end
  phone:wait(1)
  for i, id in ipairs(P.apps) do
    P.badge(user, id, i)
    phone:run(id)
    phone:settle()
    phone:home()
    phone:settle()
  end
  for _ = 1, 4 do
    phone:activator()
    phone:settle()
  end
  user.shuffled = false
  phone:wait(2)
end

local first, first_settings -- of this life of the home screen, and of Settings
-- The system keeps pictures of numbers that it has drawn, 64 of each kind.
local kept = { UIImage = 64, SimCGImage = 64 }
-- The same text may be held in several classes, by what it was made from.
local function live_objects(counters)
  local live = {}
  for class, count in pairs(counters.live) do
    local kind = class:find("String$") and "strings" or class
    live[kind] = (live[kind] or 0) + count
  end
  return live
end
local function compare(now, before, what)
  local total, live_before = 0, live_objects(before)
  for class, live in pairs(live_objects(now)) do
    total = total + live
    if math.abs(live - (live_before[class] or 0)) > (kept[class] or 0) then
      expect(false, ("%s: %d objects of class %s, before %d"):format(what, live, class, live_before[class] or 0))
    end
  end
  for _, kind in ipairs{ "timers", "windows", "views", "blocks", "observers" } do
    expect_eq(now[kind], before[kind], what .. ": " .. kind)
  end
  return total
end
local function count_growth(day)
  tidy()
  local now, what = phone:counters(), "day " .. day
  local total, of_settings = compare(now, first, what), compare(user.pane:counters(), first_settings, what .. ", Settings")
  print(("day\t%d\t%d objects\t%d timers\t%d windows\t%d views\t%d in Settings"):format(day, total, now.timers, now.windows,
    now.views, of_settings))
end

local function warm_up()
  P.go_home(user)
  if not proof then habits.each(user) end
  P.visit(user)
  P.set(user, P.usual)
  tidy()
  first, first_settings = phone:counters(), user.pane:counters()
end

local function start_again()
  P.go_home(user)
  phone:respring()
  user.pane, user.shuffled = nil, true
  phone:wait(5)
  warm_up()
end

warm_up()
for day = 1, days do
  local midnight = (day - 1) * 24 * hour
  if day > 1 and day % week == 1 then start_again() end
  for of_day = 0, 23 do
    if of_day == 23 then
      judge(day)
      count_growth(day)
      P.sleep(user)
    end
    pass_hour(midnight + of_day * hour, of_day)
    if proof then phone:badge(P.spare, 1) end
    print(("hour\t%d\t%.0f\t%s"):format((day - 1) * 24 + of_day + 1, phone:now(), user.pane and "Settings" or "-"))
  end
end
for name, count in pairs(user.done) do print(("did\t%s\t%d"):format(name, count)) end
