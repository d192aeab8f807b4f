-- The overlay as scripts find it: its views by their tags, and what a hand does to it. Every set of hands builds on
-- this one.
local O = {}

-- In the window; in the panel and its content view; in an item; in the lock's faces; on a home-screen icon.
O.tags = {
  dismiss = -1, logo = 1, bubble = 2, panel = 3, screen = 21,
  content = 1, dots = 56, text = 100, cancel = 101, ok = 102, ask = 44, finger = 45, keypad = 46,
  clock = 10, icon = 1, card = -19, mark = -1, badge = 99,
  title = -1, button = -2, zero = 100, to_keypad = 3,
  icon_mark = 1953,
}
local tags = O.tags

-- Each is nil while it, or what it lies in, is not there.
function O.overlay(phone) return phone:find{ window = "overlay", class = "UIWindow" } end
function O.sub(phone, view, tag) return view and phone:find{ parent = view, tag = tag } end
-- The same in what was there when `view` was looked at: a look takes all that lies in a view, so one is enough.
local function child(view, tag)
  for _, sub in ipairs(view and view.children or {}) do
    if sub.tag == tag then return sub end
  end
end
function O.top(phone, tag) return child(O.overlay(phone), tag) end
function O.panel(phone) return O.top(phone, tags.panel) end
function O.content(phone) return child(O.panel(phone), tags.content) end
function O.part(phone, tag) return child(O.content(phone), tag) end
function O.strip(phone) return phone:find{ window = "overlay", class = "NewUIScrollView" } end
function O.item(phone, id) return phone:find{ window = "overlay", name = id } end
function O.is_open(phone) return O.panel(phone) ~= nil end
-- One of the lock's faces: "ask", "finger" or "keypad".
function O.face(phone, name) return O.part(phone, tags[name]) end
O.child = child
function O.key(phone, digit)
  return child(O.face(phone, "keypad"), digit == 0 and tags.zero or digit * 10)
end
-- The mark that stands for a badge on the home screen.
function O.icon_mark(phone, id) return phone:find{ parent = phone:icon(id), tag = tags.icon_mark } end

-- The items from left to right, and their applications.
function O.items(phone)
  local list = {}
  for _, view in ipairs(O.strip(phone).children) do
    if view.name and view.name ~= "" then list[#list + 1] = view end
  end
  table.sort(list, function(a, b) return a.x < b.x end)
  return list
end
function O.listed(phone)
  local list = {}
  for i, item in ipairs(O.items(phone)) do list[i] = item.name end
  return list
end

-- Where a thumb meets the indicator.
function O.indicator_place(phone)
  local i = phone:indicator()
  return { i.x + i.w / 2, i.y + i.h / 2 }
end
function O.press_indicator(phone) phone:tap(O.indicator_place(phone)) end

-- A point that neither the panel nor the bubble covers.
function O.outside(phone)
  local window, panel = O.overlay(phone), O.panel(phone)
  local low = window.h - 20
  return { 5, panel and panel.y + panel.h > low - 10 and window.h / 4 or low }
end

-- Touches the keys of a code, one after the other.
function O.type(phone, digits)
  for digit in digits:gmatch("%d") do
    phone:tap((assert(O.key(phone, tonumber(digit)), "no key for " .. digit)))
  end
end

-- Off the strip, past its middle by a little.
function O.swipe_down(phone, item) phone:drag(item, 0, O.strip(phone).h / 2 - item.y + 30, 0.3) end
function O.swipe_up(phone, item) phone:drag(item, 0, O.strip(phone).h / 2 - item.y - item.h - 30, 0.3) end
function O.long_press(phone, item)
  phone:hold(item, 2)
  phone:settle()
end

-- A new set of hands: what `base`, if given, and these ones do, and more.
function O.extended(base)
  local hands = {}
  for _, from in ipairs{ O, base } do
    for name, value in pairs(from) do hands[name] = value end
  end
  return hands
end

return O
