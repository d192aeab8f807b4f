-- A finger that meets the overlay while it moves goes to the overlay: beside everything that can be pressed it neither
-- closes the panel nor reaches the home screen under it.
local P = require("panel")
local L = require("lock")

local function open(phone)
  phone:activator()
  phone:settle()
end
local function ask_first(phone)
  open(phone)
  P.long_press(phone, P.items(phone)[1])
end
local lock = { pass = true, password = "1234", where = "every" }
local function locked(more)
  local all = {}
  for _, from in ipairs{ lock, more or {} } do
    for key, value in pairs(from) do all[key] = value end
  end
  return all
end

-- What moves: settings, what goes before, the start of the movement.
for what, case in pairs{
  opening = { {}, nil, function(phone) phone:activator() end },
  ["the question comes"] = { {}, open, function(phone) phone:hold(P.items(phone)[1], 0.8) end },
  ["the question goes"] = { {}, ask_first, function(phone) phone:tap(P.part(phone, P.tag.cancel)) end },
  ["the finger's face, then the keypad"] = { locked{ touchid = true }, open,
    function(phone) phone:tap(L.part(phone, "finger", L.tags.to_keypad)) end },
  ["the ask face leaves"] = { locked{ ask = true }, open,
    function(phone) phone:tap(L.part(phone, "ask", L.tags.button)) end },
  unlocked = { locked{ clear = true }, open, function(phone)
    P.type(phone, "1234")
    phone:wait(0.2)
  end },
  ["the screen comes down"] = { {}, open, function(phone)
    phone:reachability(true)
    phone:wait(0.1)
  end },
} do
  for _, after in ipairs{ 0.02, 0.1, 0.25 } do
    local label = what .. ", touched " .. after .. " s later"
    local phone = P.boot(case[1], { device = "iPhone 6" })
    if case[2] then case[2](phone) end
    case[3](phone)
    phone:wait(after)
    local panel = P.panel(phone) -- where it will stand; its corner has nothing to press
    phone:tap{ panel.x + 4, panel.y + 4 }
    phone:settle()
    expect(P.is_open(phone), label .. ": the panel stays")
    expect_eq(phone:foreground(), nil, label .. ": and nothing opens under it")
    P.no_harm(phone)
  end
end

-- It turns over a home screen that stays upright.
for _, after in ipairs{ 0.02, 0.1, 0.25 } do
  local phone = P.boot({}, { device = "iPhone 6", apps = P.numbered(24) })
  open(phone)
  phone:rotate(3)
  phone:wait(after)
  phone:tap(phone:icon(P.app(21)))
  phone:settle()
  expect_eq(phone:foreground(), nil, "turning, touched " .. after .. " s later: nothing opens under it")
  P.no_harm(phone)
end
