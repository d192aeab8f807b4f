-- Every device and system version that existed together starts with the extension, quietly and once.
local H = require("home")
each_profile(function(device, ios)
  local what = device .. " " .. ios
  local phone = boot{ device = device, ios = ios, settings = { enable = true } }
  expect_eq(H.logged(phone, "<Pendix> Loaded!"), 1, what .. ": loaded once")
  expect_eq(#phone:log(), 1, what .. ": and nothing else was logged")
  H.no_harm(phone)
  expect_eq(#phone:events("warning"), 0, what .. ": no warning")
  expect_eq(#phone:events("missing_file"), 0, what .. ": no file is missing")
  local i = phone:indicator()
  expect(i.present and i.visible, what .. ": the indicator is there")
  expect_eq(i.image, "Pendix", what .. ": in badge mode's image")
  phone:badge(H.mail, 2)
  phone:wait(2.5)
  H.no_harm(phone)
end)
