-- Reachability brings the panel within reach of the thumb and back: the logo lies on the indicator and the panel hangs
-- under it wherever that has gone, unless the settings place it; it grows out of the indicator and back into it, and
-- asked it stays on the screen. Seen from what is drawn, upright and on its side, at every opening.
local P = require("panel")

local function near(screen, wanted, tolerance, what)
  for i, key in ipairs{ "x", "y", "w", "h" } do
    expect_near(screen[key], wanted[i], tolerance, what .. ": " .. key)
  end
end

-- How far the panel stays from the lower edge where it does not hang.
local function margin(case) return case.turned and 25 or case.screen[1] / 10 end

-- The panel stands where `kind` says, logo and bubble with it.
local function stands(phone, kind, case, what)
  local i, panel, screen = phone:indicator(), P.panel(phone).screen, case.screen
  local logo, bubble = P.top(phone, P.tag.logo), P.top(phone, P.tag.bubble)
  near(logo.screen, { i.x, i.y, i.w, i.h }, 0.01, what .. ": the logo lies on the indicator")
  local width, height = 0.8 * math.min(screen[1], screen[2]), panel.h
  local x, y = (screen[1] - width) / 2, (screen[2] - height) / 2
  if kind == "hangs" then
    if case.turned then x = i.x + 1.5 * i.w + 20 - width end
    -- Higher where it would reach below the screen, down to where it hangs when the screen is up.
    y = math.min(i.y + i.h + 10, math.max(screen[2] - height - margin(case), i.h + 10))
    local b = bubble.screen
    local covered = b.y >= panel.y and b.y + b.h <= panel.y + panel.h and b.x >= panel.x and b.x + b.w <= panel.x + panel.w
    if y < i.y + i.h + 10 then expect(bubble.alpha == 0 or covered, what .. ": no bubble beside the panel") end
  elseif kind == "bottom" then
    y = screen[2] - height - margin(case)
  end
  near(panel, { x, y, width, height }, 0.01, what .. ": the panel, " .. kind)
  expect(panel.y >= 0 and panel.y + panel.h <= screen[2], what .. ": on the screen")
  if kind ~= "hangs" then
    expect_eq(bubble.alpha, 0, what .. ": without the bubble")
  else
    near(bubble.screen, { i.x - i.w / 2, i.y + 5, 2 * i.w, 2 * i.h + 10 }, 0.01, what .. ": the bubble behind the indicator")
  end
end

-- The point in which the panel is at the first moment of its opening and the last of its closing.
local function at_indicator(phone, tolerance, what)
  local i = phone:indicator()
  near(P.panel(phone).screen, { i.x + (i.w + 1) / 2, i.y + i.h - 5, 1, 1 }, tolerance, what)
end

local function pull(phone, on)
  phone:reachability(on)
  phone:settle()
  phone:wait(0.3) -- the follower's next tick and its animation
  phone:settle()
end

local function open(phone, what)
  P.press_indicator(phone)
  at_indicator(phone, 0.01, what .. ": grows out of the indicator")
  phone:settle()
  phone:wait(0.3)
end

local function close(phone, what)
  phone:activator()
  phone:wait(0.49)
  at_indicator(phone, 1, what .. ": shrinks into the indicator")
  phone:settle()
  P.closed(phone)
end

local kinds = {
  { {}, up = "hangs", down = "bottom" },
  { { position = "middle" }, up = "hangs", down = "bottom" },
  { { rech = true }, up = "hangs", down = "hangs" },
  { { rech = true, position = "top" }, up = "hangs", down = "hangs" },
  { { rech = true, position = "middle" }, up = "middle", down = "middle" },
  { { rech = true, position = "bottom" }, up = "bottom", down = "bottom" },
}
local devices = { { "iPhone 6", 1, screen = { 375, 667 }, shots = true }, { "iPhone 6 Plus", 1, screen = { 414, 736 } },
  { "iPhone 6 Plus", 3, screen = { 736, 414 }, turned = true, shots = true },
  { "iPhone 6 Plus", 4, screen = { 736, 414 }, turned = true } }

for _, device in ipairs(devices) do
  for _, kind in ipairs(kinds) do
    local name = ("%s turned to %d, rech %s, position %s"):format(device[1], device[2], kind[1].rech, kind[1].position)
    local function standing(phone, which, what) stands(phone, kind[which], device, name .. ", " .. what) end
    local phone = P.boot(kind[1], { device = device[1] })
    phone:rotate(device[2])
    phone:settle()

    -- The screen comes down and goes up again under a panel that stands.
    open(phone, name)
    standing(phone, "up", "opened")
    for round = 1, 2 do
      pull(phone, true)
      standing(phone, "down", "pulled down")
      pull(phone, false)
      standing(phone, "up", "up again")
    end
    close(phone, name)

    -- Opened while the screen is down: every time in the same place.
    for round = 1, 3 do
      local what = "opened while it is down, time " .. round
      pull(phone, true)
      open(phone, name .. ", " .. what)
      standing(phone, "down", what)
      if round == 2 then
        if device.shots then
          phone:shot(("reachability-%s-%d-%s-%s"):format(device[1], device[2], kind[1].rech, kind[1].position))
        end
        P.long_press(phone, P.items(phone)[1])
        standing(phone, "down", "asked")
        phone:tap(P.part(phone, P.tag.cancel))
        phone:settle()
        standing(phone, "down", "and back")
      end
      close(phone, name .. ", " .. what)
    end
    pull(phone, true)
    open(phone, name)
    phone:tap(P.items(phone)[1])
    phone:settle()
    P.closed(phone)
    expect_eq(phone:foreground(), P.app(3), name .. ": an application opens from there")
    P.no_harm(phone)
  end
end

-- The state of the last opening does not count: the screen was down then, and comes down now while the panel opens.
do
  local phone = P.boot({ rech = true }, { device = "iPhone 6" })
  pull(phone, true)
  open(phone, "first")
  close(phone, "first")
  pull(phone, false)
  P.press_indicator(phone)
  phone:wait(0.1)
  pull(phone, true)
  phone:wait(0.5)
  stands(phone, "hangs", devices[1], "pulled down while it opens")
  P.no_harm(phone)
end

-- A code pad is higher than what is left below an indicator that is down: it stays on the screen, and the list that
-- comes after it hangs under the indicator.
for _, device in ipairs{ devices[1], devices[3] } do
  local phone = P.boot({ rech = true, pass = true, password = "1234", where = "every", clear = true }, { device = device[1] })
  phone:rotate(device[2])
  phone:settle()
  pull(phone, true)
  open(phone, "locked")
  stands(phone, "hangs", device, "locked")
  phone:shot("reachability-locked-" .. device[2])
  for digit in ("1234"):gmatch(".") do
    phone:tap(phone:find{ inside = P.panel(phone), tag = 10 * tonumber(digit) })
  end
  phone:settle()
  stands(phone, "hangs", device, "unlocked")
  P.no_harm(phone)
end
