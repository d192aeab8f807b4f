-- A settings file that cannot be read, or holds the wrong kinds, reads as absent values: the launch goes on, and
-- nothing is lost beyond what the launch itself writes.
local H = require("home")
local texts = {
  empty = "", garbage = "\0\1\2\255 not a property list", ["a list"] = "( a, b )", ["a string"] = "hello",
  ["truncated XML"] = '<?xml version="1.0" encoding="UTF-8"?>\n<plist version="1.0"><dict><key>enable</key><tr',
  ["truncated binary"] = "bplist00\209\1\2", ["unbalanced"] = "{ enable = 1; ", ["a bomb"] = ("("):rep(100000),
}
for what, text in pairs(texts) do
  local phone = boot{ settings_text = text, apps = H.apps(H.mail) }
  expect_eq(H.logged(phone, "<Pendix> Loaded!"), 1, what .. ": the launch goes on")
  expect_eq(phone:settings(), { hasTouchID = "1" }, what .. ": the launch writes its key into a new file")
  expect_eq(phone:indicator().visible, false, what .. ": reads as off")
  phone:badge(H.mail, 1)
  phone:set("enable", true)
  phone:wait(1)
  expect_eq(phone:indicator().visible, true, what .. ": a good file counts again")
  H.no_harm(phone)
end

local old_style = boot{ settings_text = '{ enable = YES; tint = green; "com.apple.mobilemail" = { hide_perapp = 1; }; }',
  apps = H.apps(H.mail) }
expect_eq(old_style:indicator().visible, true, "an old-style file is read")
expect_eq(old_style:settings().tint, "green", "and its values survive the launch")
expect_eq(old_style:settings()["com.apple.mobilemail"].hide_perapp, "1", "the nested ones too")

-- Each key with each wrong kind, while badges come and go.
local kinds = { {}, { 1, 2 }, { a = "b" }, "", "banana", 7, -1, 2.5, true }
local keys = { H.mail }
for _, setting in ipairs(require("setting_keys")) do
  if setting.page ~= "application" then keys[#keys + 1] = setting.key end
end
for _, key in ipairs(keys) do
  local phone = boot{ settings = { enable = true, glow = true }, apps = H.apps(H.mail, H.phone) }
  for _, value in ipairs(kinds) do
    phone:set(key, value)
    phone:badge(H.mail, 1)
    phone:wait(1.2)
    phone:badge(H.mail, 0)
    phone:wait(0.2)
  end
  H.no_harm(phone)
  expect_eq(phone:settings().enable ~= nil, true, key .. ": the file is still there")
end
