-- The panel in each of its modes, one picture each.
local known = {
  { "com.apple.mobilemail", "Mail", 3 }, { "com.apple.mobilephone", "Phone", 1 },
  { "com.apple.MobileSMS", "Messages", 12 }, { "com.apple.mobilecal", "Calendar", 2 },
  { "com.apple.mobiletimer", "Clock", 5 }, { "com.apple.Preferences", "Settings", 1 },
  { "com.apple.AppStore", "App Store", 1000 },
}

-- `count` badged applications, running or not.
local function apps(count, running)
  local list = {}
  for i = 1, count do
    list[i] = { id = known[i][1], name = known[i][2], badge = known[i][3], running = running }
  end
  return list
end

local function press_indicator(phone)
  local i = phone:indicator()
  phone:tap{ i.x + i.w / 2, i.y + i.h / 2 }
end

local function show(name, settings, list, device, ios, orientation)
  settings.enable = true
  local phone = boot{ device = device or "iPhone 6", ios = ios or "8.1", settings = settings, apps = list }
  phone:wait(1)
  if orientation then phone:rotate(orientation) phone:settle() end
  press_indicator(phone)
  phone:settle()
  phone:wait(0.5)
  phone:shot(name)
  return phone
end

local function hold_first(phone, name)
  phone:hold(phone:find{ window = "overlay", name = "com.apple.mobiletimer" }, 2)
  phone:settle()
  phone:shot(name)
end

show("dark", {}, apps(4))
show("light", { light = true }, apps(4))
show("blur", { blur = true, back = true }, apps(4))
show("running", { badge = true }, apps(5, true))
show("cards", { badge = true, ca = true }, apps(4, true))
show("paged", { paging = true }, apps(7))
show("empty", {}, { { id = "com.apple.mobilemail", name = "Mail" } })
hold_first(show("marks-off", { close = true }, apps(5)), "edit")
hold_first(show("question-off", {}, apps(5)), "question")
show("bottom", { rech = true, position = "bottom" }, apps(5))
show("middle", { rech = true, position = "middle" }, apps(5))
show("landscape", {}, apps(5), "iPhone 6", "8.1", 3)
show("pad", {}, apps(6), "iPad Air 2", "8.1")
show("small", {}, apps(4), "iPhone 4S", "7.1")

local phone = boot{ settings = { enable = true, glow = true }, apps = apps(4) }
press_indicator(phone)
phone:filmstrip("opening", 0.5, 6)
phone:settle()
phone:tap{ 180, 600 }
phone:filmstrip("closing", 0.5, 6)
