-- On every device and version, upright and turned, what is heard of the panel, the lock and the pane lies on the screen,
-- apart from one another, in the order in which one reads; and all of it is heard.
local P, L, S = require("panel"), require("lock"), require("speech")

local keys = { "Enter Passcode", "1", "2", "3", "4", "5", "6", "7", "8", "9", "0", "Cancel" }

each_profile(function(device, ios)
  local what = device .. " " .. ios .. ", "
  local phone = P.boot({ paging = true }, { device = device, ios = ios, apps = P.numbered(6) })
  local home = phone:find{ window = "home", class = "UIWindow" }
  local size = { home.w, home.h }
  S.open(phone)
  local heard = 0
  repeat heard = heard + #S.orderly(phone, what .. "the list", size) until not S.swipe(phone, "left")
  expect_eq(heard, 6, what .. "every application, once")
  P.long_press(phone, S.elements(phone)[1].view)
  expect_eq(#S.orderly(phone, what .. "the question", size), 3, what .. "a text and two buttons")

  phone = L.boot_locked({ ask = true }, { device = device, ios = ios })
  for _, turned in ipairs{ 1, 3 } do
    phone:rotate(turned)
    S.settle(phone)
    -- Most home screens stay upright while the panel turns; before 8.0 the system reads all by its place upright.
    local turns = device:find("iPad") or (device == "iPhone 6 Plus" and ios >= "8")
    local seen = turned == 3 and turns and { size[2], size[1] } or size
    local sideways = turned == 3 and (not turns or ios < "8")
    S.open(phone)
    expect_eq(#S.orderly(phone, what .. "asking", seen, sideways), 2, what .. "the number and a button")
    S.press(phone, "Unlock")
    local list = S.orderly(phone, what .. "the keypad", seen, sideways)
    expect_eq(#list, #keys + (S.find(phone, "Touch ID") and 1 or 0), what .. "ten keys between title and buttons")
    for i, label in ipairs(turned == 3 and ios < "8" and {} or keys) do
      expect_eq(list[i].label, label, what .. "the keypad in its order")
    end
    S.enter(phone, "1234")
    expect_eq(#S.orderly(phone, what .. "the list turned", seen, sideways), 3, what .. "all applications")
    phone:escape()
    S.settle(phone)
  end

  local pane = settings_app{ device = device, ios = ios, settings = { tint = "blue" } }
  pane:settle()
  -- Beside the list of an iPad lies another column.
  S.orderly(pane, what .. "the pane", nil, device:find("iPad"))
  for _, label in ipairs{ "Configuration", "Passcode Lock", "Change Passcode" } do
    pane:activate(S.reach(pane, label))
    S.settle(pane)
  end
  S.orderly(pane, what .. "the code sheet", size)
end)
