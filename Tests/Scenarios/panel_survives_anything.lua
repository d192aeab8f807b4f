-- Whatever a hurried person does, without waiting for anything to end: nothing crashes, nobody is lost or doubled, and
-- once all has come to rest the panel stands in order and works. The number of rounds may be given as the argument.
local P = require("panel")
local rounds = math.tointeger(args[1] or 6)
local count = 7

local function any(list) return #list > 0 and list[math.random(#list)] or nil end
local function shown_item(phone)
  local list = {}
  for _, item in ipairs(P.items(phone)) do
    if item.screen.w > 0 then list[#list + 1] = item end
  end
  return any(list)
end
local function with_panel(action)
  return function(phone)
    if P.panel(phone) then action(phone) end
  end
end
local function with_item(action)
  return with_panel(function(phone)
    local item = shown_item(phone)
    if item then action(phone, item) end
  end)
end
local function press(tag)
  return with_panel(function(phone)
    local button = P.part(phone, tag)
    if button then phone:tap(button) end
  end)
end
local actions = {
  function(phone) phone:activator() end,
  function(phone)
    if phone:indicator().view then P.press_indicator(phone) end
  end,
  function(phone) phone:tap(P.outside(phone)) end,
  function(phone) phone:badge(P.app(math.random(count)), math.random(0, 3)) end,
  function(phone) phone:rotate(math.random(4)) end,
  function(phone) phone:home() end,
  with_item(function(phone, item) P.swipe_down(phone, item) end),
  with_item(function(phone, item) P.swipe_up(phone, item) end),
  with_item(function(phone, item) phone:drag(item, math.random(-80, 80), math.random(-80, 80), 0.2) end),
  with_item(function(phone, item) phone:fling(item, math.random(-150, 150), 0, 0.1) end),
  with_item(function(phone, item) phone:hold(item, 1.2) end),
  with_item(function(phone, item) phone:tap(item) end),
  with_item(function(phone, item) phone:tap(P.sub(phone, item, P.tag.mark)) end),
  press(P.tag.cancel),
  press(P.tag.ok),
}

local function in_order(phone, paging, what)
  local items, strip = P.items(phone), P.strip(phone)
  local seen, gap = {}, (strip.w - 180) / 4
  for i, item in ipairs(items) do
    expect(not seen[item.name], what .. item.name .. " stands there once")
    seen[item.name] = true
    expect_near(item.x, gap + (i - 1) * (gap + 60) + (paging and (i - 1) // 3 * gap or 0), 0.01, what .. "place " .. i)
    expect_near(item.y, paging and 26 or 18, 0.01, what .. "in the row " .. i)
  end
  expect_eq(P.empty_text(phone) ~= nil, #items == 0, what .. "a text where nobody is")
  if not P.part(phone, P.tag.text) then
    expect(strip.interactive and strip.scroll.enabled, what .. "the strip takes touches")
    expect_eq(P.panel(phone).h, paging and 120 or 110, what .. "height")
  end
  local dots = P.part(phone, P.tag.dots)
  if dots and #items > 0 then expect_eq(#dots.children, (#items + 2) // 3, what .. "dots") end
end

for _, settings in ipairs{ {}, { paging = true, hide_t = true }, { close = true, badge = true },
  { fast = true, close = true } } do
  for round = 1, rounds do
    local what = ("%s round %d: "):format(tostring(settings), round)
    local phone = P.boot(settings,
      { ios = round % 2 == 0 and "7.1" or "8.1", apps = P.numbered(count, { running = true }) })
    for _ = 1, 30 do
      any(actions)(phone)
      phone:wait(math.random() * 0.5)
    end
    if phone:foreground() then phone:home() end
    phone:rotate(1)
    phone:settle()
    phone:wait(1)
    if P.panel(phone) then
      in_order(phone, settings.paging, what)
      phone:tap(P.outside(phone))
      phone:settle()
    end
    P.closed(phone)
    phone:badge(P.app(1), 5) -- which brings the indicator back, wherever it hides without a badge
    phone:wait(0.5)
    phone:activator()
    phone:settle()
    in_order(phone, settings.paging, what .. "opened again, ")
    local item = P.items(phone)[1]
    if item then
      phone:tap(item)
      phone:settle()
      expect_eq(phone:foreground(), item.name, what .. "a tap opens the application")
    end
    P.no_harm(phone)
  end
end
