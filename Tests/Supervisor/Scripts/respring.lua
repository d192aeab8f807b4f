-- The home screen starts anew in a device that goes on: its clock, files, badges and list of events.
local mail = "com.apple.mobilemail"
local phone = boot { extension = false, settings = { a = 1 } }
local before = phone:icon(mail)
phone:wait(5)
phone:badge(mail, 7)
local count = #phone:events()
phone:down { 5, 300 }
phone:respring()
expect_eq(phone:now(), 5, "the same moment")
expect(#phone:events() > count and #phone:events("respring") == 1, "the list of events goes on")
expect_eq(phone:events("respring")[1].t, 5, "and has the restart in it")
expect_eq(phone:settings(), { a = 1 }, "files stay")
expect(phone:find { inside = phone:icon(mail), class = "SBIconBadgeView" }, "badges stay")
phone:down { 5, 300 }
phone:up()
phone:settle()
for _, use in ipairs { phone.tap, phone.again, function(p, v) p:find { inside = v } end,
  function(p, v) p:find { parent = v } end, function(p, v) p:call("x:", v) end } do
  local held, problem = pcall(use, phone, before)
  expect(not held and problem:find("before the home screen booted again", 1, true), tostring(problem))
end
expect_eq(before.class, "SBIconView", "what was seen can still be read")
expect(phone:again(phone:icon(mail)), "new views are found")

-- The device stays as it is held.
for _, case in ipairs { { "iPad Air 2", nil, 1024 }, { "iPhone 6", nil, 375 }, { "iPhone 6", true, 667 } } do
  phone = boot { device = case[1], interface_turns = case[2], extension = false }
  phone:rotate(3)
  phone:respring()
  expect_eq(phone:find { window = "home", class = "UIWindow" }.screen.w, case[3], case[1] .. " on its side")
  phone:rotate(1)
  phone:respring()
  expect(phone:find { window = "home", class = "UIWindow" }.screen.w < 800, case[1] .. " and upright again")
end
