-- Helpers of the home-screen scenarios.
local M = {}

M.mail, M.phone, M.clock = "com.apple.mobilemail", "com.apple.mobilephone", "com.apple.mobiletimer"

function M.apps(...)
  local list = {}
  for i, id in ipairs{...} do list[i] = { id = id, name = id:match("[^.]*$") } end
  return list
end

function M.logged(phone, text)
  local n = 0
  for _, line in ipairs(phone:log()) do
    if line:find(text, 1, true) then n = n + 1 end
  end
  return n
end

-- A shadow that shows: "#rrggbbaa" of the glow, nil when there is none.
function M.glow(phone)
  local i = phone:indicator()
  return i.shadow_opacity == 1 and i.shadow_color or nil
end

-- Whether the indicator's alpha moves within half a second.
function M.pulses(phone)
  local before, moved = phone:indicator().alpha, false
  for _ = 1, 10 do
    phone:wait(0.05)
    if phone:indicator().alpha ~= before then moved = true end
  end
  return moved
end

function M.no_harm(phone)
  expect_eq(#phone:events("crash"), 0, "nothing crashed")
  expect_eq(#phone:events("unrecognized"), 0, "no selector was unknown")
end

return M
