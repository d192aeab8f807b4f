-- Helpers of the panel's scenarios: what a person does to it, and its views as they stand.
local P = require("overlay").extended(require("home"))
P.tag, P.ids = P.tags, P.listed

function P.must(value, what)
  if value == nil then
    expect(false, what)
    error(what, 2)
  end
  return value
end

-- `count` applications org.example.1 and so on, badged 1, 2 …; `more` is copied into each. The one that changed
-- last comes first on the strip, so they stand there as count … 1.
function P.numbered(count, more)
  local list = {}
  for i = 1, count do
    list[i] = { id = "org.example." .. i, name = "App " .. i, badge = i }
    for key, value in pairs(more or {}) do list[i][key] = value end
  end
  return list
end

function P.app(n) return "org.example." .. n end

function P.names(first, last)
  local list = {}
  for n = first, last, first <= last and 1 or -1 do list[#list + 1] = P.app(n) end
  return list
end

-- A device with `enable` on. `settings` and `options` are added.
function P.boot(settings, options)
  local all = { device = "iPhone 5s", ios = "8.1", settings = { enable = true }, apps = P.numbered(3) }
  for key, value in pairs(options or {}) do all[key] = value end
  for key, value in pairs(settings or {}) do all.settings[key] = value end
  return boot(all)
end

local content = P.content
function P.content(phone)
  P.must(P.panel(phone), "the panel is shown")
  return content(phone)
end

-- Of several alike, the one that is not hidden.
function P.seen(phone, tag)
  for _, view in ipairs(phone:all{ parent = P.content(phone), tag = tag }) do
    if not view.hidden then return view end
  end
end

-- The text that the empty strip shows.
function P.empty_text(phone)
  local list = {}
  for _, view in ipairs(P.strip(phone).children) do
    if view.class == "UILabel" then list[#list + 1] = view end
  end
  expect(#list <= 1, "at most one text on the strip")
  return list[1]
end

function P.frame(view) return { view.x, view.y, view.w, view.h } end
function P.near(view, wanted, what)
  for i, value in ipairs(P.frame(view)) do
    expect_near(value, wanted[i], 0.01, what .. ": " .. ({ "x", "y", "w", "h" })[i])
  end
end

function P.open(phone)
  P.press_indicator(phone)
  phone:settle()
  P.must(P.panel(phone), "a tap on the indicator opens the panel")
end

function P.close(phone)
  phone:tap(P.outside(phone))
  phone:settle()
  P.closed(phone)
end

-- What is left when the panel has gone: nothing but what the launch made.
function P.closed(phone)
  local window = P.overlay(phone)
  expect_eq(#window.children, 2, "only the launch's two views are left")
  expect_eq(window.interactive, false, "touches go through again")
  expect_eq(window.background, nil, "nothing is dimmed")
  expect_eq(P.top(phone, P.tag.screen).alpha, 0, "the screen's backdrop is transparent")
  local own = phone:indicator().x
  for _, view in ipairs(phone:all{ window = "statusbar", class = "UIStatusBarItemView" }) do
    if view.x ~= own then expect_eq(view.alpha, 1, "the status bar is itself again") end
  end
end

-- The middle of a view or a point, as a point.
function P.middle(at)
  if at.screen then return { at.screen.x + at.screen.w / 2, at.screen.y + at.screen.h / 2 } end
  return at
end
-- A finger, the first unless `finger` tells which, comes down there and goes that way, but does not lift.
function P.slide(phone, at, dx, dy, seconds, finger)
  local from = P.middle(at)
  phone:down(from, finger or 1)
  P.slide_on(phone, from, dx, dy, seconds, finger)
end
-- The same for a finger that is down there already.
function P.slide_on(phone, at, dx, dy, seconds, finger)
  local from, steps = P.middle(at), math.max(1, math.floor(seconds * 60 + 0.5))
  for step = 1, steps do
    phone:wait(1 / 60)
    phone:move(from[1] + dx * step / steps, from[2] + dy * step / steps, finger or 1)
  end
end

-- How often home clicks went past the panel, to the system.
function P.clicks_passed(phone)
  local n = 0
  for _, event in ipairs(phone:events("original")) do
    if event.selector == "clickedMenuButton" then n = n + 1 end
  end
  return n
end

-- Events of that kind since `mark`, which is a number of events.
function P.mark(phone) return #phone:events() end
function P.since(phone, mark, kind)
  local list = {}
  for i, event in ipairs(phone:events()) do
    if i > mark and event.kind == kind then list[#list + 1] = event end
  end
  return list
end

return P
