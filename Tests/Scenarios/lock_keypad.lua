-- The keypad under a person's fingers: digits, deleting, wrong codes, the shake, and the right code at last.
local L = require("lock")

for _, fast in ipairs{ false, true } do
  local phone = L.boot_locked{ fast = fast }
  L.open(phone)
  local asked = L.title(phone, "keypad")
  expect_eq(L.button(phone).title, "Cancel", "nothing to delete yet")

  -- What is typed, and what the dots and the button are then.
  for i, step in ipairs{
    { "1", "1", "x---", "Delete" }, { "0", "10", "xx--", "Delete" }, { "0", "100", "xxx-", "Delete" },
    { "<", "10", "xx--", "Delete" }, { "<", "1", "x---", "Delete" }, { "<", "", "----", "Cancel" },
    { "7", "7", "x---", "Delete" }, { "<", "", "----", "Cancel" },
  } do
    if step[1] == "<" then phone:tap(L.button(phone)) else L.type(phone, step[1]) end
    phone:settle()
    local digits, filled = L.entered(phone)
    expect_eq({ digits, filled, L.button(phone).title }, { step[2], step[3], step[4] }, "step " .. i)
  end
  expect_eq(L.sounds(phone, L.click), 4, "each key clicks, the button does not")

  -- A wrong code, with a fifth digit while the fourth dot still fills.
  L.type(phone, "999")
  phone:settle()
  local x = {}
  for i = 1, 4 do x[i] = L.part(phone, "keypad", i).x end
  phone:down(L.key(phone, 9)); phone:up()
  phone:down(L.key(phone, 5)); phone:up()
  expect_eq(L.entered(phone), "9999", "a fifth digit enters nothing")
  expect_eq(L.sounds(phone, L.click), 9, "though it clicks")
  local swings, last = {}, 0
  for _ = 1, 80 do
    phone:wait(1 / 60)
    local offset = L.part(phone, "keypad", 1).x - x[1]
    if offset ~= last then swings[#swings + 1] = offset - last; last = offset end
    L.nothing_shows(phone, "during the shake ")
  end
  expect_eq(swings, { -50, 90, -70, 50, -30, 10 }, "the dots shake their head")
  for i = 1, 4 do expect_eq(L.part(phone, "keypad", i).x, x[i], "dot " .. i .. " ends where it began") end
  expect_eq({ L.entered(phone) }, { "", "----" }, "all digits are gone")
  expect_eq(L.sounds(phone, L.vibration), 1, "one vibration")
  expect_eq(L.title(phone, "keypad"), "Try Again", "another title than " .. asked)
  expect_eq(L.button(phone).title, "Cancel", "nothing to delete again")

  -- Wrong codes near the right one; no count is kept and nothing gets slower.
  for i, code in ipairs{ "1235", "0234", "4321", "1134", "1243", "0000", "2341", "1233" } do
    local before = phone:now()
    L.enter(phone, code)
    expect_eq(L.shown(phone), "keypad", code .. " is wrong")
    expect_eq(L.sounds(phone, L.vibration), i + 1, code .. " vibrates")
    expect(phone:now() - before < 2, code .. " can be followed at once")
  end
  L.enter(phone, "1234")
  expect_eq(L.shown(phone), "list", "the right code unlocks")
  expect_eq(L.sounds(phone, L.vibration), 9, "and does not vibrate")
  L.close(phone)

  -- Deleting once more than there are digits closes.
  L.open(phone)
  L.enter(phone, "12")
  for _ = 1, 2 do phone:tap(L.button(phone)) end
  phone:settle()
  expect(L.is_open(phone), "the second deletion leaves it open")
  phone:tap(L.button(phone))
  phone:settle()
  expect(not L.is_open(phone), "the third press closes")
  expect_eq(L.logged(phone, "<Pendix> Pendix UI unlocked!"), 1, "unlocked once in all")
  L.no_harm(phone)
end

-- Blank keys, or digits and letters.
for clear, wanted in pairs{ [false] = "", [true] = "0 1 2 3 4 5 6 7 8 9   ABC DEF GHI JKL MNO PQRS TUV WXYZ" } do
  local phone = L.boot_locked({ clear = clear, light = clear }, { ios = "7.1", device = "iPhone 4S" })
  L.open(phone)
  local texts, letters = {}, { [0] = nil, " ", "ABC", "DEF", "GHI", "JKL", "MNO", "PQRS", "TUV", "WXYZ" }
  expect_eq(L.part(phone, "keypad", L.tags.title).font_size, 20, "the title's type")
  local written = phone:find{ parent = L.button(phone), class = "UIButtonLabel" }
  expect_eq(written.text_color, clear and "#000000ff" or "#ffffffff", "the button's title in ink")
  for digit = 0, 9 do
    local key = L.key(phone, digit)
    for i, label in ipairs(phone:all{ parent = key, class = "UILabel" }) do
      expect_eq(label.text, i == 1 and tostring(digit) or letters[digit], "text " .. i .. " of key " .. digit)
      expect_eq({ label.x, label.y, label.w, label.h }, i == 1 and { 0, -5, key.w, key.h } or { 0, key.h / 2, key.w, key.h / 2 },
        "place of text " .. i .. " of key " .. digit)
      texts[#texts + 1] = label.text
      expect_eq(label.text_color, "#000000ff", "in ink")
    end
  end
  table.sort(texts)
  expect_eq(table.concat(texts, " "), clear and "  0 1 2 3 4 5 6 7 8 9 ABC DEF GHI JKL MNO PQRS TUV WXYZ" or wanted,
    "the keys' texts")
  L.enter(phone, "1")
  expect_eq(L.part(phone, "keypad", 1).background, clear and "#000000ff" or "#ffffffff", "a filled dot is ink")
  L.no_harm(phone)
end
