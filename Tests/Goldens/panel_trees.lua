-- Prints the panel's views in one mode on one device: `args` is the device, its system version and the mode.
local P = require("panel")
local known = { { id = P.mail, name = "Mail", badge = 3 }, { id = P.clock, name = "Clock", badge = 1000 },
  { id = "com.apple.MobileSMS", name = "Messages", badge = 12 }, { id = "com.apple.mobilecal", name = "Calendar" } }
local function apps(count)
  local list = P.numbered(count, { running = true })
  for i = 1, math.min(count, #known) do
    list[i] = known[i]
    list[i].running = true
  end
  return list
end
-- Settings and how many applications there are.
local modes = {
  badge = { {}, 3 },
  light = { { light = true, blur = true, back = true }, 2 },
  running = { { badge = true }, 4 },
  paged = { { paging = true }, 6 },
  cards = { { ca = true }, 2 },
  empty = { {}, 0 },
  marks = { { close = true }, 2 },
  question = { { rech = true, position = "bottom" }, 2 },
}
local device, ios, mode = args[1], args[2], modes[args[3]]
local phone = P.boot(mode[1], { device = device, ios = ios, apps = apps(mode[2]) })
P.open(phone)
if args[3] == "marks" or args[3] == "question" then P.long_press(phone, P.items(phone)[1]) end
print((phone:dump("overlay"):gsub("%s+$", "")))
P.no_harm(phone)
