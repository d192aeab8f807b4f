-- The indicator's view answers a tap and nothing else, and every item of the status bar stays touchable.
local H = require("home")
each_profile(function(device, ios)
  local phone = boot{ device = device, ios = ios, settings = { enable = true } }
  local what = device .. " " .. ios .. ": "
  local own = phone:indicator().view
  expect_eq(own.gestures, { "UITapGestureRecognizer" }, what .. "one recogniser")
  local items = phone:all{ window = "statusbar", class = "UIStatusBarItemView" }
  expect(#items > 3, what .. "there are stock items beside it")
  for _, item in ipairs(items) do expect_eq(item.interactive, true, what .. item.class .. " takes touches") end
  for _, item in ipairs(items) do
    if item.x ~= own.x then
      local overlap = math.min(item.x + item.w, own.x + own.w) - math.max(item.x, own.x)
      expect(overlap <= 0.01, what .. "the indicator covers no other item")
    end
  end
end, function(device, ios) return ios == "7.1" or ios == "8.1" end)
