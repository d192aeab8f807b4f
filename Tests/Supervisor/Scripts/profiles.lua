-- Every pair of device and version is run once, oldest first; filters choose among them.
local pairs_run = {}
each_profile(function(device, ios) pairs_run[#pairs_run + 1] = device .. " " .. ios end)
expect_eq(#pairs_run, 37, "all pairs that existed")
expect_eq({ pairs_run[1], pairs_run[37] }, { "iPhone 4 7.0", "iPad mini 3 8.3" }, "in order")
local function count(filter)
  local n = 0
  each_profile(function() n = n + 1 end, filter)
  return n
end
expect_eq(count { device = "iPhone 6" }, 3, "by device")
expect_eq(count { ios = { "7.0", "7.1" } }, 12, "by versions")
expect_eq(count { device = { "iPad 2", "iPad Air 2" }, ios = "8.3" }, 2, "by both")
expect_eq(count(function(device, ios) return device:find("iPad") and ios == "7.1" end), 2, "by a function")
expect(not pcall(each_profile, function() error("x") end), "an error in the function is an error")

-- a screen of each kind boots
each_profile(function(device, ios)
  local phone = boot { device = device, ios = ios, extension = false }
  local window = phone:find { window = "home", class = "UIWindow" }
  expect(window and window.w >= 320 and window.h >= 480, device .. " " .. ios .. " shows its home screen")
  expect_eq(tostring(phone), "phone (" .. device .. ", iOS " .. ios .. ")", "the phone says what it is")
end, { device = { "iPhone 4", "iPhone 6 Plus", "iPad mini 3" } })
