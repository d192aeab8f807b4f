-- Prints some pages of the settings pane on one device: `args` is the device, its system version and what to print.
local P = require("pane")

-- Fields that are printed where they differ from a plain view's.
local plain = { alpha = 1, hidden = false, corner_radius = 0, shadow_opacity = 0, font = false, font_size = false,
  text_color = false, background = false, tint = "#007affff", image = false, title = false, shadow_color = false, shadow_radius = 3 }
local order = { "alpha", "hidden", "background", "tint", "corner_radius", "font", "font_size", "text_color", "image", "title",
  "shadow_opacity", "shadow_radius", "shadow_color" }

local function fields(view)
  local list = {}
  for _, name in ipairs(order) do
    local value = view[name]
    if name:find("shadow") and view.shadow_opacity == 0 then value = nil end
    if value ~= nil and value ~= plain[name] then list[#list + 1] = string.format("%s %s", name, value) end
  end
  for _, a in ipairs(view.animations) do
    list[#list + 1] = string.format("animates %s from %s to %s in %g%s", a.keypath, a.from, a.to, a.duration,
      a.autoreverses and ", there and back" or "")
  end
  return table.concat(list, " ")
end

local function tree(view, depth)
  local text = view.text and #view.text > 0 and string.format(' "%s"', view.text) or ""
  local tag = view.tag ~= 0 and " tag " .. view.tag or ""
  print((string.format("%s%s%s%s (%g %g; %g %g) %s", ("  "):rep(depth), view.class, tag, text, view.x, view.y, view.w, view.h,
    fields(view)):gsub("%s+$", "")))
  for _, child in ipairs(view.children) do tree(child, depth + 1) end
end

-- The views that a page added to a cell, without the cell's own.
local function added(pane, class)
  local cell = pane:find{ class = class }
  print(string.format("%s (%g %g; %g %g)", class, cell.x, cell.y, cell.w, cell.h))
  for i = 2, #cell.children do tree(cell.children[i], 1) end
end

local function page_of(pane, class)
  for _, view in ipairs(pane:all{ class = "UIView" }) do
    for _, child in ipairs(view.children) do
      if child.class == class then return view end
    end
  end
end

local function start(settings)
  local _, pane = P.start(settings, { device = args[1], ios = args[2] })
  return pane
end

local function turned(pane, orientation)
  pane:rotate(orientation)
  pane:wait(1)
  print("turned to " .. orientation)
end

local prints = {}

-- Every page's rows, with what explains them.
function prints.rows()
  local pane = start{ enable = true, position = "middle", where = "every", amount = "2" }
  for _, path in ipairs{ {}, { "Configuration" }, { "Configuration", "Reachability" },
    { "Configuration", "Indeterminate Badges" }, { "Configuration", "Status Bar Icon" }, { "Configuration", "Passcode Lock" },
    { "Configuration", "Apps", "com.apple.mobilemail" } } do
    P.go(pane, path)
    local page = pane:page()
    print(string.format("%s: %s", page.class, page.title))
    for _, row in ipairs(page.rows) do
      print(string.format("  %s: %s = %s", row.kind, row.label, row.value))
      for _, name in ipairs{ "footer", "choices", "icon" } do
        if row[name] then print(string.format("    %s %s", name, row[name])) end
      end
    end
    for _ = 1, #path do P.back(pane) end
  end
end

-- The header of the first page, and the page about the extension.
function prints.header()
  local pane = start{ enable = true }
  added(pane, "HeaderCellForPendix")
  for _, view in ipairs(pane:all{ class = "UIImageView", visible = true }) do
    if view.image and view.image:find("Pendix_Title") then
      print(string.format("title (%g %g) image %s", view.w, view.h, view.image))
    end
  end
  local painted = 0
  for _, view in ipairs(pane:all{ inside = pane:find{ class = "UISwitch" } }) do
    if view.background == "pattern" then painted = painted + 1 end
  end
  print(string.format("views of the switch that are painted with the pattern: %d", painted))
  turned(pane, 3)
  added(pane, "HeaderCellForPendix")
  turned(pane, 1)
  added(pane, "HeaderCellForPendix")
  P.go(pane, { "Contact" })
  tree(page_of(pane, "UIButton"), 0)
end

-- The colour page, for either purpose.
function prints.colors()
  for _, path in ipairs{ { "Status Bar Icon", "Glow Color" }, { "Indeterminate Badges", "Mark Color" } } do
    local pane = start{ tint = "white", colors = "white" }
    P.go(pane, { "Configuration", path[1], path[2] })
    added(pane, "cards")
    turned(pane, 4)
    added(pane, "cards")
  end
end

-- The sheets for a code, as they come and one step on.
function prints.sheets()
  for _, settings in ipairs{ { pass = true, password = "1234" }, { password = "1234" }, {} } do
    local pane = start(settings)
    P.go(pane, { "Configuration", "Passcode Lock" })
    if not settings.pass then
      P.press(pane, "Change Passcode")
      tree(page_of(pane, "UITextField"), 0)
      P.type(pane, "1234")
    end
    tree(page_of(pane, "UITextField"), 0)
  end
end

prints[args[3]]()
