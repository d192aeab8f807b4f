-- At launch the indicator follows `enable` and `badge` alone; `hide` and `hide_t` wait for a change or a badge.
local H = require("home")
local cases = {
  { {}, false, "Pendix" },
  { { enable = true }, true, "Pendix" },
  { { enable = false, hide = false }, false, "Pendix" },
  { { enable = true, badge = true }, true, "PendixSwitcher" },
  { { badge = true }, false, "PendixSwitcher" },
  { { enable = true, hide = true }, true, "Pendix" },
  { { enable = true, hide_t = true }, true, "Pendix" },
}
for n, case in ipairs(cases) do
  local phone = boot{ settings = case[1] }
  local what = "case " .. n
  expect_eq(phone:indicator().visible, case[2], what .. ": visible")
  expect_eq(phone:indicator().image, case[3], what .. ": image")
  phone:wait(5)
  expect_eq(phone:indicator().visible, case[2], what .. ": the poll alone changes nothing")
  local view = phone:indicator().view
  expect_eq(view ~= nil, case[2], what .. ": an invisible item has no view")
  H.no_harm(phone)
end
local phone = boot{}
expect_eq(phone:settings(), { hasTouchID = "1" }, "a missing file is made, with the sensor's key alone")
expect_eq(phone:indicator().visible, false, "and the extension is inert")
expect(phone:indicator().present, "though the item exists")
