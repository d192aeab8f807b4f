-- Hands of those who listen: they know of the screen what VoiceOver tells them, and act on what it has told.
local S = {}

-- An element as it is heard.
function S.words(element) return element.value and (element.label or "") .. ", " .. element.value or element.label end
local function settle(where)
  if where:find{ class = "cards" } then where:wait(1) else where:settle() end
end
S.settle = settle

-- All that is heard, in order, without what the system's bar says.
function S.elements(where)
  local list = {}
  for _, element in ipairs(where:spoken()) do
    local class = element.view and element.view.class or ""
    if not class:find("^UIStatusBar") then list[#list + 1] = element end
  end
  return list
end
function S.heard(where)
  local list = {}
  for i, element in ipairs(S.elements(where)) do list[i] = S.words(element) end
  return list
end

-- A page's title may read like one of its rows.
function S.find(where, label)
  for _, element in ipairs(where:spoken()) do
    if element.label == label and element.traits[1] ~= "header" then return element end
  end
end
local function must(where, label)
  local element = S.find(where, label)
  if element then return element end
  error("nothing is called " .. label .. ", but: " .. table.concat(S.heard(where), " / "), 3)
end

-- A double tap on what has that label, and what else can be done with it.
function S.press(where, label)
  where:activate(must(where, label))
  settle(where)
end
function S.act(phone, label, action)
  expect(phone:act(must(phone, label), action), action .. " is done with " .. label)
  settle(phone)
end
function S.swipe(phone, direction)
  local turned = phone:scroll_page(direction)
  settle(phone)
  return turned
end
function S.enter(phone, code)
  for digit in code:gmatch("%d") do S.press(phone, digit) end
end
function S.open(phone) S.press(phone, "Pendix") end

function S.focus(phone)
  local element = phone:focus()
  return element and S.words(element)
end
-- Turns pages until that label is heard.
function S.reach(where, label)
  for _, direction in ipairs{ "up", "down" } do
    repeat
      local element = S.find(where, label)
      if element then return element end
    until not S.swipe(where, direction)
  end
  return must(where, label)
end
-- What was said without being asked since the last time.
local told = setmetatable({}, { __mode = "k" })
function S.said(phone)
  local list, events = {}, phone:events("spoken")
  for i = (told[phone] or 0) + 1, #events do list[#list + 1] = events[i].text end
  told[phone] = #events
  return list
end

-- Every element has a name, lies clear of the others and, given a size, on the screen, and they are read as one reads,
-- unless `sideways`: what hangs turned on a screen that is not.
function S.orderly(where, what, size, sideways)
  local list = S.elements(where)
  expect(#list > 0, what .. ": something is heard")
  for i, element in ipairs(list) do
    local a, name = element.screen, what .. ": " .. (element.label or "?")
    expect((element.label or "") ~= "", name .. " has a name")
    expect(a.w >= 1 and a.h >= 1, name .. " has a size")
    expect(not size or a.x > -0.1 and a.y > -0.1 and a.x + a.w < size[1] + 0.1 and a.y + a.h < size[2] + 0.1,
      name .. " lies on the screen")
    for k = i + 1, #list do
      local b = list[k].screen
      local apart = a.x + a.w < b.x + 0.1 or b.x + b.w < a.x + 0.1 or a.y + a.h < b.y + 0.1 or b.y + b.h < a.y + 0.1
      expect(apart, name .. " lies clear of " .. (list[k].label or "?"))
      local after = sideways or b.y + b.h / 2 > a.y + a.h or (b.x > a.x and b.y + b.h > a.y)
      expect(k > i + 1 or after, name .. " is read before " .. (list[k].label or "?"))
    end
  end
  return list
end

return S
