-- The launch writes whether there is a Touch ID sensor, as text, beside whatever the file holds; and the device's
-- own capabilities are told apart.
local sensor = { ["iPhone 5s"] = "1", ["iPhone 6"] = "1", ["iPhone 6 Plus"] = "1", ["iPad Air 2"] = "1",
  ["iPad mini 3"] = "1" }
local big = { ["iPhone 6"] = true, ["iPhone 6 Plus"] = true }
each_profile(function(device, ios)
  local settings = { enable = false, tint = "green", amount = "2", ["com.apple.mobilemail"] = { hide_perapp = true } }
  local phone = boot{ device = device, ios = ios, settings = settings }
  settings.hasTouchID = sensor[device] or "0"
  expect_eq(phone:settings(), settings, device .. ": hasTouchID is added and nothing else changes")
  expect_eq(phone:call("hasTouchID"), sensor[device] == "1", device .. ": hasTouchID")
  expect_eq(phone:call("hasBigScreen"), big[device] or device:find("iPad") ~= nil, device .. ": hasBigScreen")
end, function(device, ios) return ios == "8.1" or device == "iPhone 4" and ios == "7.1" end)
