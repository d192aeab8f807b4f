-- The settings file as other processes write it: kinds of values survive, other keys stay.
local values = { yes = true, no = false, whole = 4, real = 0.5, text = "äöü <&>", list = { 1, "two", { 3 } },
  dictionary = { a = { b = true } }, empty = {} }
local phone = boot { extension = false, settings = values }
expect_eq(phone:settings(), values, "what boot wrote is read")
expect_eq(math.type(phone:settings().whole), "integer", "an integer stays one")
expect_eq(math.type(phone:settings().real), "float", "a real stays one")
phone:set("whole", 5)
phone:set { real = 2.0, new = "x" }
phone:set("yes", nil)
values.whole, values.real, values.new, values.yes = 5, 2.0, "x", nil
expect_eq(phone:settings(), values, "the other keys stay")
expect_eq(math.type(phone:settings().real), "float", "2.0 is no integer")
phone:delete_settings()
expect_eq(phone:settings(), nil, "no file, no table")
phone:delete_settings()
phone:set("first", 1)
expect_eq(phone:settings(), { first = 1 }, "setting makes the file")
for _, wrong in ipairs { { print }, { { 1, x = 2 } }, { 5 } } do
  expect(not pcall(phone.set, phone, "key", wrong[1]) or wrong[1] == 5, "only plain values can be kept")
end
expect(not pcall(phone.set, phone, { 1, 2 }), "a list has no keys")
expect(not pcall(phone.set, phone, 5, 5), "a key is a string")
expect_eq(#phone:events("warning"), 0, "all of that was in order")

local broken = boot { extension = false, settings_text = "<plist><dict><key>a" }
expect_eq(broken:settings(), nil, "a broken file has no table")
expect(#broken:events("warning") == 1 and broken:events("warning")[1].text:find("cannot be read"), "and says so")
expect_eq(boot { extension = false }:settings(), nil, "no settings, no file")
expect_eq(boot { extension = false, settings = {} }:settings(), {}, "empty settings are a file")
