-- When the panel asks for its code again: every step is an opening, and only an unlock disarms it.
local L = require("lock")

local function opens(phone, wanted, what)
  L.open(phone)
  expect_eq(L.shown(phone) ~= "list", wanted, what)
end
local function unlock(phone)
  L.enter(phone, "1234")
  expect_eq(L.shown(phone), "list", "the code unlocks")
  L.close(phone)
end

for name, where in pairs{ every = "every", nothing = "", other = 17 } do
  local phone = L.boot_locked{ where = where }
  for _ = 1, 2 do
    opens(phone, true, name .. ": every opening asks")
    L.close(phone)
    opens(phone, true, name .. ": closing is no unlock")
    unlock(phone)
  end
end
local absent = L.boot{ pass = true, password = "1234" }
opens(absent, true, "without a choice every opening asks")
unlock(absent)

local phone = L.boot_locked{ where = "lockscreen" }
opens(phone, false, "lockscreen: a device that is not locked opens the list")
L.close(phone)
phone:set("where", "every")
opens(phone, true, "every")
L.close(phone)
phone:set("where", "lockscreen")
opens(phone, false, "lockscreen again takes the lock away")
L.close(phone)

phone = L.boot_locked{ where = "everyoff" }
opens(phone, false, "everyoff: nothing has been dark since the start")
L.close(phone)
phone:set("where", "every")
opens(phone, true, "every arms it")
L.close(phone)
phone:set("where", "everyoff")
opens(phone, true, "everyoff leaves it armed")
L.close(phone)
opens(phone, true, "until it is unlocked")
unlock(phone)
opens(phone, false, "and then leaves it open")
L.close(phone)

-- A code that is stored as something else than text locks, and nothing typed opens it.
phone = L.boot_locked{ password = 1234 }
opens(phone, true, "a number as the code locks")
L.enter(phone, "1234")
expect_eq(L.shown(phone), "keypad", "and is never entered")
L.close(phone)
-- A code that is taken away while the keypad shows.
phone:set("password", "1234")
opens(phone, true, "a text again")
phone:set("password", false)
L.enter(phone, "1234")
expect_eq(L.shown(phone), "keypad", "what is missing is never matched")
phone:set("password", "0000")
L.enter(phone, "0000")
expect_eq(L.shown(phone), "list", "the code is read when it is needed")
L.no_harm(phone)
