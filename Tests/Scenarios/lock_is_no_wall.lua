-- What the lock is not: it does not count wrong codes, it rests on a file and on code that others can reach, and
-- without a code of its own the panel over the lock screen shows and changes what it lists.
local L = require("lock")

-- Nobody counts.
local phone = L.boot_locked{ fast = true }
L.open(phone)
for _ = 1, 30 do L.enter(phone, "9999") end
expect_eq(L.shown(phone), "keypad", "a wrong code opens nothing, however often")
L.nothing_shows(phone, "meanwhile ")
L.enter(phone, "1234")
expect_eq(L.shown(phone), "list", "after thirty wrong ones the right one opens at once")
L.close(phone)

-- Who can read the file knows the code; who can write it needs none.
expect_eq(phone:settings().password, "1234", "the code stands in the file as it is")
phone:set("pass", false)
L.open(phone)
expect_eq(L.shown(phone), "list", "the lock is off as soon as the file says so")
L.close(phone)

-- Code in the home screen's process, another extension's say, needs no code either.
phone:set("pass", true)
L.open(phone)
expect_eq(L.shown(phone), "keypad", "locked again")
phone:call("unlockPendix:", L.tags.keypad)
phone:settle()
expect_eq(L.shown(phone), "list", "one message unlocks it")

-- A panel without a code, over the lock screen of a device with one.
phone = L.boot({}, { device = "iPhone 5s", ios = "8.1", passcode = true })
phone:lock()
phone:settle()
phone:display(true)
phone:wait(1)
phone:activator()
phone:settle()
expect(phone:find{ window = "overlay", name = L.ids[3], visible = true } ~= nil, "tells which applications carry badges")
local item = L.item(phone, 3)
phone:drag(item, 0, -150, 0.3)
phone:settle()
local set = phone:events("badge_set")
expect_eq({ set[#set].id, set[#set].value }, { L.ids[3], 0 }, "clears a badge while the device is locked")
expect(phone:find{ window = "lock", visible = true } ~= nil, "the lock screen is still up")
L.no_harm(phone)
