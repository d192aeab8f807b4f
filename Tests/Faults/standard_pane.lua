-- The part of the standard day that happens in Settings: the pane's pages, what they store and what they show.
local M = {}

local function settle(pane)
  if pane:find{ class = "cards" } then pane:wait(1) else pane:settle() end
end
local function go(pane, path)
  for _, label in ipairs(path) do
    pane:open(label)
    settle(pane)
  end
end
local function rows(pane)
  local list = {}
  for _, row in ipairs(pane:page().rows) do list[#list + 1] = { row.label or "", row.kind, row.footer or "" } end
  return list
end
local function press(pane, title)
  pane:press(title)
  settle(pane)
end
-- What every picture on the page came from.
local function pictures(pane)
  local list = {}
  for _, row in ipairs(pane:page().rows) do list[#list + 1] = row.icon or "-" end
  for _, view in ipairs(pane:all{ class = "UIImageView" }) do
    if view.image and view.image:find("/") then list[#list + 1] = view.image end
  end
  for _, view in ipairs(pane:all{ class = "UIView" }) do
    if view.background == "pattern" then list[#list + 1] = "pattern" end
  end
  return list
end
local icon_page = { "Configuration", "Status Bar Icon", "Glow Color" }
local code_page = { "Configuration", "Passcode Lock" }

-- Back to the first page, whatever is in front.
function M.tidy(both)
  local pane = both.pane
  for _ = 1, 8 do
    if pane:sheet() then
      press(pane, "Cancel")
    elseif pane:alert() then
      press(pane, pane:alert().buttons[1])
    elseif pane:page().class ~= "PendixSettingsController" then
      if not pcall(pane.back, pane) then pcall(press, pane, "Cancel") end
      settle(pane)
    else
      return
    end
  end
end

M.steps = {
  { "settings: the page opens", looks = true, function(both)
    settle(both.pane)
    return both.pane:page().class
  end },
  { "settings: texts", looks = true, function(both)
    local list = { rows(both.pane) }
    go(both.pane, { "Configuration" })
    list[2] = rows(both.pane)
    return list
  end },
  { "settings: a switch is stored", looks = true, function(both)
    go(both.pane, { "Configuration" })
    both.pane:toggle("Fast Animations")
    settle(both.pane)
    return both.phone:settings().fast or false
  end },
  { "settings: other keys keep their values", function(both)
    go(both.pane, { "Configuration" })
    both.pane:toggle("Fast Animations")
    settle(both.pane)
    both.pane:toggle("Light Appearance")
    settle(both.pane)
    local all = both.phone:settings()
    all.fast, all.light, all.hasTouchID = nil, nil, nil
    return all
  end },
  { "settings: pictures", looks = true, function(both)
    local list = { pictures(both.pane) }
    go(both.pane, { "Contact" })
    list[2] = pictures(both.pane)
    return list
  end },
  { "settings: a colour is stored", function(both)
    go(both.pane, icon_page)
    both.pane:swipe("left")
    settle(both.pane)
    press(both.pane, "Apply")
    press(both.pane, "OK")
    return both.phone:settings().tint
  end },
  { "settings: pictures of the colours", looks = true, function(both)
    go(both.pane, icon_page)
    return pictures(both.pane)
  end },
  { "settings: a code is set", function(both)
    go(both.pane, code_page)
    press(both.pane, "Change Passcode")
    for _, text in ipairs{ "1234", "4242", "4242" } do
      both.pane:type(text)
      settle(both.pane)
    end
    return both.phone:settings().password or ""
  end },
  { "settings: pictures of the code", looks = true, function(both)
    go(both.pane, code_page)
    press(both.pane, "Change Passcode")
    both.pane:type("4")
    settle(both.pane)
    return pictures(both.pane)
  end },
  { "settings: applications are listed", function(both)
    go(both.pane, { "Configuration", "Apps" })
    return #both.pane:page().rows > 3
  end },
  { "settings: Activator's page", function(both)
    both.pane:open("Configuration")
    settle(both.pane)
    both.pane:open("Activator")
    settle(both.pane)
    return both.pane:page().class
  end },
  { "settings: sharing", function(both)
    local bar = both.pane:find{ class = "UINavigationBar", visible = true }.screen
    both.pane:tap{ bar.x + bar.w - 25, bar.y + bar.h - 22 }
    settle(both.pane)
    return #both.pane:events("tweet")
  end },
}

return M
