-- A code that is set in the pane guards the panel of the home screen on the same device.
local P = require("pane")
local L = require("lock")

local phone, pane = P.start({ enable = true }, {
  device = "iPhone 5", ios = "8.1", apps = { { id = L.ids[1], name = "Mail" }, { id = L.ids[2], name = "Messages" } },
})
phone:badge(L.ids[1], 3)
phone:wait(1)
L.open(phone)
expect(L.item(phone, 1) ~= nil, "without a code the panel shows its list")
L.close(phone)

P.go(pane, { "Configuration", "Passcode Lock" })
P.press(pane, "Change Passcode")
for _ = 1, 2 do P.type(pane, "2580") end
expect(pane:sheet() == nil, "the repeated code is taken")
P.toggle(pane, "Lock Panel")
P.type(pane, "2580") -- the lock takes no other hand
expect_eq(phone:settings().password, "2580", "and stored")

L.open(phone)
expect_eq(L.shown(phone), "keypad", "now it asks")
L.nothing_shows(phone, "behind the code set in the pane ")
L.enter(phone, "2581")
expect_eq(L.shown(phone), "keypad", "for that code")
L.enter(phone, "2580")
expect(L.face_view(phone, "keypad") == nil, "and no other")
expect(L.item(phone, 1) ~= nil, "then the list shows")
