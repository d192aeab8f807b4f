-- Methods of the home screen's application object can be asked by name; arguments and results are plain values.
local phone = boot { extension = false }
local view = phone:find { window = "home" }
expect_eq(phone:call("isStatusBarHidden"), false, "a boolean")
expect_eq(math.type(phone:call("statusBarOrientation")), "integer", "a whole number")
expect_eq(phone:call("className"), "SpringBoard", "text")
expect_eq(phone:call("isEqual:", view), false, "a view goes in as the object that it is")
expect_eq(phone:call("isEqual:", 5), false, "a number as one too")
expect_eq(phone:call("isEqual:", "x"), false, "and text")
expect_eq(phone:call("cancelAllLocalNotifications"), nil, "nothing comes of a method without a result")
for _, case in ipairs {
  { "shared", nil, "has no method 'shared'" },
  { "isEqual:", nil, "takes 1 argument, not 0" },
  { "className", 1, "takes 0 arguments, not 1" },
  { "launchApplicationWithIdentifier:suspended:", "x", "takes 2 arguments" },
  { "statusBarWindow", nil, "the result is an object of class" },
  { "statusBarFrame", nil, "no boolean, number or text" },
  { "respondsToSelector:", "x", "takes no text" },
  { "respondsToSelector:", 1, "takes no number" },
  { "respondsToSelector:", view, "takes no object" },
  { "isEqual:", { 1 }, "a number, a string or a view" },
} do
  local held, problem = pcall(phone.call, phone, case[1], case[2])
  expect(not held and problem:find(case[3], 1, true), tostring(problem))
end
