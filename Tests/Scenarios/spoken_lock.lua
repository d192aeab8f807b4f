-- A person who listens passes the lock by speech alone, and fails; nobody hears of the list before, nor which digits were
-- entered; VoiceOver may come and go meanwhile.
local L, S = require("lock"), require("speech")

local function silent(phone, what)
  for _, words in ipairs(S.heard(phone)) do
    for _, name in ipairs(L.names) do expect(not words:find(name), what .. ": " .. words .. " is not heard") end
  end
end
local function start(settings, options)
  local o = { voiceover = true, device = "iPhone 6" }
  for key, value in pairs(options or {}) do o[key] = value end
  local phone = L.boot_locked(settings, o)
  expect_eq(S.words(S.find(phone, "Pendix")), "Pendix", "the indicator keeps what waits to itself")
  S.open(phone)
  S.said(phone)
  silent(phone, "locked")
  return phone
end
local keypad = { "Enter Passcode, 0 of 4 digits entered", "1", "2", "3", "4", "5", "6", "7", "8", "9", "0" }
local list = { "Cyd, 3 new", "Bob, 2 new", "Ada, 1 new" }
local function hears_keypad(phone, title, more, what)
  local wanted = { title, table.unpack(keypad, 2) }
  for _, words in ipairs(more) do wanted[#wanted + 1] = words end
  expect_eq(S.heard(phone), wanted, what)
end

for _, ios in ipairs{ "7.1", "8.1" } do
  for _, clear in ipairs{ false, true } do
    local phone = start({ clear = clear }, { ios = ios, device = ios == "7.1" and "iPhone 4S" or nil })
    local sensor = ios == "8.1" and { "Touch ID" } or {}
    hears_keypad(phone, keypad[1], { "Cancel", table.unpack(sensor) }, "the keypad, with its digits shown or not")
    expect_eq(S.focus(phone), keypad[1], "from its title on")
    S.enter(phone, "12")
    hears_keypad(phone, "Enter Passcode, 2 of 4 digits entered", { "Delete", table.unpack(sensor) }, "how many are entered")
    S.press(phone, "Delete")
    expect_eq(S.heard(phone)[1], "Enter Passcode, 1 of 4 digits entered", "one less")
    S.enter(phone, "235")
    expect_eq(S.said(phone), { "Wrong passcode. Try again." }, "a wrong code is told")
    hears_keypad(phone, "Try Again, 0 of 4 digits entered", { "Cancel", table.unpack(sensor) }, "nothing is entered now")
    silent(phone, "after a wrong code")
    S.enter(phone, "1234")
    expect_eq(S.heard(phone), list, "the code unlocks")
    expect_eq(S.said(phone), { "Unlocked", list[1] }, "which is told, and the first application is heard")
    S.press(phone, "Bob")
    expect_eq(phone:foreground(), L.ids[2], "it opens")
    L.no_harm(phone)
  end
end

-- From face to face; what is spoken is the face that shows, from its beginning on.
local phone = start{ ask = true, touchid = true }
expect_eq(S.heard(phone), { "3 apps have badges", "Unlock" }, "the question")
S.press(phone, "Unlock")
expect_eq(S.heard(phone), { "Touch ID for Pendix", "Cancel", "Passcode" }, "the finger")
S.press(phone, "Passcode")
hears_keypad(phone, keypad[1], { "Cancel", "Touch ID" }, "the keypad")
S.press(phone, "Touch ID")
expect_eq(S.said(phone), { "Touch ID for Pendix", keypad[1], "Touch ID for Pendix" }, "each is told")
phone:finger("failed")
S.settle(phone)
expect_eq(S.said(phone), { "Touch ID Failed" }, "a sensor that fails is told")
-- VoiceOver leaves and comes back in front of a face.
phone:aid("voiceover", false)
S.settle(phone)
expect_eq(phone:focus(), nil, "nothing has the focus")
phone:aid("voiceover", true)
S.settle(phone)
silent(phone, "VoiceOver is back")
expect_eq(S.heard(phone), { "Touch ID Failed", "Cancel", "Passcode" }, "where it was")
phone:finger("match")
silent(phone, "while the glyph ticks")
S.settle(phone)
expect_eq(S.heard(phone), list, "a finger unlocks")
expect(phone:escape(), "the scrub closes")
S.settle(phone)
S.open(phone)
expect_eq(S.heard(phone), { "3 apps have badges", "Unlock" }, "locked anew")
expect(phone:escape(), "a face is left by the scrub, too")
S.settle(phone)
expect_eq(S.focus(phone), "Pendix", "back at the indicator")
L.no_harm(phone)


-- Where the lock would not ask, the indicator says what waits.
for _, settings in ipairs{ { pass = false }, { where = "everyoff" }, { where = "lockscreen" } } do
  phone = L.boot_locked(settings)
  expect_eq(S.words(S.find(phone, "Pendix")), "Pendix, 3 apps have badges", "not locked")
end
