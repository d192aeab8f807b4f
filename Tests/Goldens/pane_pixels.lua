-- Pictures of the colour page, and where on them things stand: "name<tab>x<tab>y<tab>w<tab>h" in points, for
-- Tests/Goldens/pane_pixels_test.py. ARGS: the device, its system version, and of how many cards one is shown.
local P = require("pane")
local _, pane = P.start({ tint = "red" }, { device = args[1], ios = args[2] })
P.go(pane, { "Configuration", "Status Bar Icon", "Glow Color" })

local function tell(name, view)
  pane:shot(name)
  print(table.concat({ name, view.screen.x, view.screen.y, view.screen.w, view.screen.h }, "\t"))
end
local function preview() return pane:find{ parent = pane:find{ class = "cards" }, tag = 1 } end

for i = 1, 12 do
  for _, view in ipairs((i - 1) % tonumber(args[3]) == 0 and pane:all{ class = "UIView", visible = true } or {}) do
    -- The card that is shown, not its neighbours.
    if view.corner_radius == 40 and view.screen.x >= -0.5 and #view.children == 1 then tell("card" .. i, view) end
  end
  pane:swipe("left")
  pane:wait(1)
end

for _ = 1, 300 do
  if preview().presented_alpha > 0.999 then break end
  pane:wait(1 / 60)
end
tell("glow", preview())
