-- Which face a locked panel opens on, what unlocks it, and that nothing of the list shows before.
local L = require("lock")

-- Device, `touchid`, `ask`: the face; the one behind the ask view; what the sensor is asked for.
for _, case in ipairs{
  { "iPhone 5", false, false, "keypad" }, { "iPhone 5", true, false, "keypad" },
  { "iPhone 5", false, true, "ask", "keypad" }, { "iPhone 5", true, true, "ask", "keypad" },
  { "iPhone 6", false, false, "keypad" }, { "iPhone 6", true, false, "finger" },
  { "iPhone 6", false, true, "ask", "keypad" }, { "iPhone 6", true, true, "ask", "finger" },
} do
  local device, touchid, ask, face, behind = table.unpack(case)
  local what = device .. " touchid " .. tostring(touchid) .. " ask " .. tostring(ask) .. ": "
  local phone = L.boot_locked({ touchid = touchid, ask = ask }, { device = device })
  local sensor = device == "iPhone 6"

  for _, open in ipairs{
    { pass = false, password = "1234" }, { pass = true, password = "" }, { pass = false, password = "" },
  } do
    phone:set(open)
    L.open(phone)
    expect_eq(L.shown(phone), "list", what .. "without switch or code there is no lock")
    expect_eq(L.sensor(phone), "", what .. "and the sensor is left alone")
    L.close(phone)
  end

  phone:set{ pass = true, password = "1234" }
  L.open(phone)
  expect_eq(L.shown(phone), face, what .. "the face it opens on")
  expect_eq(L.panel(phone).h, L.face_view(phone, face).h, what .. "the panel is as high as the face")
  expect_eq(L.sensor(phone), sensor and "observe matching_on start" or "", what .. "the sensor is asked at once")
  expect_eq(L.face_view(phone, "finger") ~= nil, sensor, what .. "a Touch ID face only where there is a sensor")
  L.nothing_shows(phone, what)
  if behind then
    expect_eq(L.title(phone, "ask"), "3 apps have badges", what .. "the ask face says how much is waiting")
    phone:tap(L.part(phone, "ask", -2))
    L.nothing_shows(phone, what .. "leaving the ask face, ")
    phone:settle()
    expect_eq(L.shown(phone), behind, what .. "the face behind the ask face")
    expect(L.face_view(phone, "ask") == nil, what .. "the ask face is gone")
    expect_eq(L.panel(phone).h, L.face_view(phone, behind).h, what .. "the panel takes its height")
    L.nothing_shows(phone, what)
  end

  if L.shown(phone) == "finger" then
    phone:tap(L.part(phone, "finger", 3))
    phone:settle()
    expect_eq(L.shown(phone), "keypad", what .. "the code works in place of a finger")
    L.nothing_shows(phone, what)
  end
  L.enter(phone, "1234")
  expect_eq(L.shown(phone), "list", what .. "the right code shows the list")
  expect_eq(L.logged(phone, "<Pendix> Pendix UI unlocked!"), 1, what .. "and says so")
  for name in pairs(L.tags) do expect(L.face_view(phone, name) == nil, what .. "no " .. name .. " face is left") end
  L.close(phone)
  L.no_harm(phone)
end

-- The ask face counts what waits.
for _, case in ipairs{
  { {}, 3, "3 apps have badges" }, { {}, 1, "One app has a badge" }, { {}, 0, "No Badges" },
  { { badge = true }, 3, "3 apps are running" }, { { badge = true }, 1, "One app is running" },
  { { badge = true }, 0, "No Running Apps" },
} do
  local settings = { ask = true, badge = case[1].badge }
  local apps = {}
  for i = 1, 3 do
    apps[i] = { id = L.ids[i], name = L.names[i], badge = i <= case[2] and 1 or 0, running = i <= case[2] }
  end
  local phone = L.boot_locked(settings, { apps = apps })
  L.open(phone)
  expect_eq(L.title(phone, "ask"), case[3], "the ask face's message")
  L.no_harm(phone)
end

-- A message that is longer than the panel is wide has two lines, and the face is so much higher.
do
  local phone = boot{ device = "iPhone 4S", ios = "7.1", language = "it", apps = L.apps("org.example.ada"),
    settings = { enable = true, pass = true, password = "1234", ask = true, badge = true } }
  L.open(phone)
  local message = L.part(phone, "ask", L.tags.title)
  expect_eq(message.text, "Nessuna app in esecuzione", "in one line 257 points long")
  expect(message.h > 40 and message.h < 60, "two lines of 20 points")
  expect_near(L.panel(phone).h, 10 + message.h + 10 + 45, 0.01, "the panel has room for both")
end
