-- Helpers of the panel's scenarios: what a person does to it, and its views as they stand.
local H = dofile("lib_home.lua")
local P = setmetatable({}, { __index = H })

-- The tags of the overlay's views.
P.tag = { dismiss = -1, logo = 1, bubble = 2, panel = 3, content = 1, dots = 56, screen = 21, clock = 10, icon = 1,
  card = -19, mark = -1, badge = 99, text = 100, cancel = 101, ok = 102 }

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

function P.overlay(phone) return phone:find{ window = "overlay", class = "UIWindow" } end
function P.top(phone, tag) return phone:find{ parent = P.overlay(phone), tag = tag } end
function P.panel(phone) return P.top(phone, P.tag.panel) end
function P.content(phone)
  return phone:find{ parent = P.must(P.panel(phone), "the panel is shown"), tag = P.tag.content }
end
function P.strip(phone) return phone:find{ parent = P.content(phone), class = "NewUIScrollView" } end
function P.part(phone, tag) return phone:find{ parent = P.content(phone), tag = tag } end
function P.sub(phone, view, tag) return phone:find{ parent = view, tag = tag } end

-- The items from left to right.
function P.items(phone)
  local list = {}
  for _, view in ipairs(P.strip(phone).children) do
    if view.name and view.name ~= "" then list[#list + 1] = view end
  end
  table.sort(list, function(a, b) return a.x < b.x end)
  return list
end

function P.ids(phone)
  local list = {}
  for i, item in ipairs(P.items(phone)) do list[i] = item.name end
  return list
end

function P.item(phone, id)
  for _, item in ipairs(P.items(phone)) do if item.name == id then return item end end
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

function P.press_indicator(phone)
  local i = phone:indicator()
  phone:tap{ i.x + i.w / 2, i.y + i.h / 2 }
end
function P.open(phone)
  P.press_indicator(phone)
  phone:settle()
  P.must(P.panel(phone), "a tap on the indicator opens the panel")
end

-- A point that neither the panel nor the bubble covers.
function P.outside(phone)
  local window, panel = P.overlay(phone), P.panel(phone)
  local low = window.h - 20
  return { 5, panel and panel.y + panel.h > low - 10 and window.h / 4 or low }
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

-- Off the strip, past its middle by a little.
function P.swipe_down(phone, item)
  phone:drag(item, 0, P.strip(phone).h / 2 - item.y + 30, 0.3)
end
function P.swipe_up(phone, item)
  phone:drag(item, 0, P.strip(phone).h / 2 - item.y - item.h - 30, 0.3)
end
function P.long_press(phone, item)
  phone:hold(item, 2)
  phone:settle()
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
