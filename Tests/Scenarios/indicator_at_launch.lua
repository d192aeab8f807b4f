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
-- From the first badge on `hide` counts, in either mode, whether the badge comes later or was there at the launch.
for _, running in ipairs{ false, true } do
  for _, badge in ipairs{ 0, 3 } do
    local what = (running and "running mode" or "badge mode") .. ", launched with " .. badge .. " unread"
    local phone = boot{ settings = { enable = true, hide = true, glow = true, badge = running },
      apps = { { id = H.mail, name = "Mail", badge = badge } } }
    expect_eq(phone:indicator().visible, badge == 0, what .. ": hidden by a badge only")
    phone:badge(H.mail, 4)
    expect_eq(phone:indicator().visible, false, what .. ": hidden by the next one")
    phone:badge(H.mail, 0)
    phone:wait(2)
    expect_eq(phone:indicator().visible, false, what .. ": and stays so")
    expect_eq(H.logged(phone, "<Pendix> Pulsing!"), 0, what .. ": nothing pulsed")
    phone:set("hide", false)
    phone:wait(1)
    expect_eq(phone:indicator().visible, true, what .. ": until the setting is off")
    H.no_harm(phone)
  end
end
local phone = boot{}
expect_eq(phone:settings(), { hasTouchID = "1" }, "a missing file is made, with the sensor's key alone")
expect_eq(phone:indicator().visible, false, "and the extension is inert")
expect(phone:indicator().present, "though the item exists")
