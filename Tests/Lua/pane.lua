-- Helpers of the scenarios that walk the settings pane. Labels are the English ones.
local M = {}

-- A phone and its Settings application, open at the pane's first page.
function M.start(settings, options)
  local o = { device = "iPhone 5s", settings = settings }
  for k, v in pairs(options or {}) do o[k] = v end
  local phone = boot(o)
  local pane = phone:open_settings()
  pane:settle()
  return phone, pane
end

-- Until nothing moves; on the colour page, where something always does, long enough for everything else.
function M.settle(pane)
  if pane:find{ class = "cards" } then pane:wait(1) else pane:settle() end
end

-- Opens one page after the other.
function M.go(pane, path)
  for _, label in ipairs(path) do
    pane:open(label)
    M.settle(pane)
  end
end

-- The rows, without texts that only explain.
function M.rows(pane)
  local list = {}
  for _, row in ipairs(pane:page().rows) do
    if row.kind ~= "text" then list[#list + 1] = row end
  end
  return list
end

function M.row(pane, label)
  for _, row in ipairs(M.rows(pane)) do
    if row.label == label then return row end
  end
end

function M.toggle(pane, label)
  pane:toggle(label)
  M.settle(pane)
end

function M.press(pane, title)
  pane:press(title)
  M.settle(pane)
end

-- From a page that covers everything, by its button.
function M.back(pane)
  if pane:page().class == "creatorsController" then
    pane:tap(pane:find{ class = "UIButton", visible = true })
  else
    pane:back()
  end
  M.settle(pane)
end

function M.type(pane, text)
  pane:type(text)
  M.settle(pane)
end

-- Chooses from a row's list and comes back to the page.
function M.choose(pane, label, title)
  local class = pane:page().class
  pane:choose(label, title)
  M.settle(pane)
  if pane:page().class ~= class then M.back(pane) end
end

function M.vibrations(pane)
  local n = 0
  for _, event in ipairs(pane:events("sound")) do
    if event.id == 4095 then n = n + 1 end
  end
  return n
end

function M.no_harm(...)
  for _, process in ipairs{ ... } do
    expect_eq(#process:events("crash"), 0, "nothing crashed")
    expect_eq(#process:events("unrecognized"), 0, "no selector was unknown")
  end
end

return M
