-- How long each step of the lock takes, slow and fast, and what a key that is touched shows meanwhile.
local L = require("lock")

local function press(face, tag) return function(phone) phone:tap(L.part(phone, face, tag)) end end
local function type(digits) return function(phone) L.type(phone, digits) end end

-- What is done, and the seconds from then on until all is at rest. Every animation may end a frame late.
local steps = {
  { "the question leaves", press("ask", -2), 0.5 },
  { "to the keypad", press("finger", 3), 0.4 },
  { "to the finger", function(phone) phone:tap(L.touch_id_button(phone)) end, 0.4 },
  { "to the keypad again", press("finger", 3), 0.4 },
  { "a digit: the key's flash and the dot", type("1"), 0.2 },
  { "its deletion", press("keypad", -2), 0.2 },
  { "a wrong code: the last dot and six moves", type("9999"), 0.2 + 6 * 0.1, 8 },
  { "the right code: the last dot and the list", type("1234"), 0.2 + 0.5, 2 },
}
for _, fast in ipairs{ false, true } do
  local phone = L.boot_locked{ ask = true, touchid = true, fast = fast }
  L.open(phone)
  for _, step in ipairs(steps) do
    local what, act, seconds, frames = table.unpack(step)
    act(phone)
    local taken, wanted = phone:settle(), fast and seconds / 4 or seconds
    expect(taken > wanted - 0.001 and taken < wanted + ((frames or 1) + 1) / 60,
      what .. (fast and ", fast" or "") .. " takes " .. wanted .. " s, it took " .. taken)
  end
  expect_eq(L.shown(phone), "list", "unlocked at last")
  L.no_harm(phone)
end

-- A key flashes in ink and is clear again.
for _, light in ipairs{ false, true } do
  local phone = L.boot_locked{ light = light }
  local ink = light and "#000000ff" or "#ffffffff"
  L.open(phone)
  L.type(phone, "7")
  expect_eq(L.key(phone, 7).background, ink, "a key that is touched goes ink")
  expect_eq(L.key(phone, 8).background, nil, "and no other")
  phone:settle()
  expect_eq(L.key(phone, 7).background, nil, "and is clear again")
  L.no_harm(phone)
end
