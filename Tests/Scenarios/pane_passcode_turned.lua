-- The phone turned while a code is typed: every sheet, at every step, there and back. What is asked and the four digits
-- stand alone in the middle, at the places of that screen, above the keyboard; what was typed stays, and typing goes on.
local P = require("pane")

local function name(view) return view.image:match("([^/]+)%.png$"):gsub("@%dx", "") end

local function apart(one, other)
  local a, b = one.screen, other.screen
  return a.x + a.w <= b.x or b.x + b.w <= a.x or a.y + a.h <= b.y or b.y + b.h <= a.y
end

-- What can be seen of the sheet: its text and its digits from left to right.
local function seen(pane)
  local page
  for _, view in ipairs(pane:all{ class = "UIView" }) do
    for _, child in ipairs(view.children) do page = child.class == "UITextField" and view or page end
  end
  local labels = pane:all{ parent = page, class = "UILabel", visible = true }
  local digits = pane:all{ parent = page, class = "UIImageView", visible = true }
  table.sort(digits, function(a, b) return a.screen.x < b.screen.x end)
  return page, labels, digits
end

local function laid_out(pane, text, dots, what)
  local page, labels, digits = seen(pane)
  expect_eq({ #labels, #digits }, { 1, 4 }, what .. "one text and four digits are in sight")
  local label, w, below = labels[1], page.w, page.h - pane:find{ class = "UINavigationBar", visible = true }.h
  expect_eq(label.text, text, what .. "what is asked")
  local x, top = (w - label.w) / 2, page.screen.y
  expect_near(label.screen.x, x, 0.01, what .. "the text is in the middle")
  expect_near(label.screen.y, top + (below + label.h) / 4, 0.01, what .. "the text's height")
  for i, digit in ipairs(digits) do
    expect_near(digit.screen.x, x + (i - 1) * (label.w - digit.w) / 3, 0.01, what .. "the digits stand under the text")
    expect_near(digit.screen.y, top + (below + digit.h) * 3 / 8, 0.01, what .. "the digits' height")
    expect_eq(name(digit), i <= dots and "dot" or "dash", what .. "digit " .. i)
  end
  local bar, keyboard = pane:find{ class = "UINavigationBar", visible = true }, pane:find{ class = "UIKeyboard" }
  expect(label.screen.y >= bar.screen.y + bar.screen.h, what .. "the text is clear of the bar")
  expect(digits[4].screen.y + digits[4].screen.h <= keyboard.screen.y, what .. "the digits are above the keyboard")
  for i, digit in ipairs(digits) do
    expect(apart(label, digit) and (i == 1 or apart(digits[i - 1], digit)), what .. "something covers digit " .. i)
  end
end

local function turn(pane, orientation)
  pane:rotate(orientation)
  pane:settle()
end

local write, old, new, again = "Enter Passcode", "Enter your old passcode", "Enter your new passcode",
  "Re-enter your new passcode"
-- What is stored, how the sheet comes, and what it asks for, one code after the other.
local sheets = {
  { "way in", { pass = true, password = "1234" }, function() end, { write } },
  { "lock", { password = "1234" }, function(pane) P.toggle(pane, "Lock Panel") end, { write } },
  { "change", { password = "1234" }, function(pane) P.press(pane, "Change Passcode") end, { old, new, again } },
  { "first", {}, function(pane) P.press(pane, "Change Passcode") end, { new, again } },
}
local orders = { { 3, 1, 4 }, { 4, 3, 1 }, { 3, 4, 1 } }

local function go_through(device, ios, sheet)
  local settings = { hasTouchID = "0" }
  for key, value in pairs(sheet[2]) do settings[key] = value end
  local pane = select(2, P.start(settings, { device = device, ios = ios }))
  P.go(pane, { "Configuration", "Passcode Lock" })
  sheet[3](pane)
  for step, text in ipairs(sheet[4]) do
    local what = string.format("%s %s, %s, step %d: ", device, ios, sheet[1], step)
    for typed, orientation in ipairs(orders[step]) do
      P.type(pane, tostring(typed))
      turn(pane, orientation)
      laid_out(pane, text, typed, what .. "turned to " .. orientation .. ": ")
      if typed == 2 then pane:shot(string.format("%s-%s-%d-%d", device:gsub(" ", ""), sheet[1], step, orientation)) end
    end
    pane:erase(1)
    pane:settle()
    laid_out(pane, text, 2, what .. "a digit taken back: ")
    pane:erase(2)
    -- The last digit goes on to the next step; the phone is turned while that comes in.
    pane:type("1234")
    if step < #sheet[4] then
      turn(pane, step == 1 and 1 or 3)
      laid_out(pane, sheet[4][step + 1], 0, what .. "turned while the next one comes: ")
    end
  end
  pane:settle()
  expect_eq(pane:sheet(), nil, device .. ", " .. sheet[1] .. ": the code is taken")
  expect_eq(pane:page().class, "passwordController", device .. ", " .. sheet[1] .. ": back on the page")
  P.no_harm(pane)
end

for _, profile in ipairs{ { "iPhone 4S", "7.1" }, { "iPhone 6", "8.1" }, { "iPad Air", "8.1" } } do
  for _, sheet in ipairs(sheets) do go_through(profile[1], profile[2], sheet) end
end
