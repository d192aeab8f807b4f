-- A home screen on a device folder in which somebody has spoilt files; Tests/Security runs it.
-- ARGS: the folder, what is set ("cards", "ask" or "file": what lies there), and installed files that are not.
local L = require("lock")
local settings = { cards = { ca = true, badge = true }, ask = { ask = true, pass = true, password = "1234", where = "every" } }
local root, set = args[1], args[2]
local options = { root = root, missing_files = { table.unpack(args, 3) } }

local phone
if set == "file" then
  options.apps = L.apps(L.ids[1])
  phone = boot(options)
else
  phone = L.boot(settings[set], options)
end
phone:wait(2)
print("visible", phone:indicator().visible)
if phone:indicator().visible then
  L.open(phone)
  if set == "ask" then print("message", L.part(phone, "ask", -1).text) end
  L.close(phone)
end
phone:wait(2)
L.no_harm(phone)
