-- A failed expectation is reported with its place and the script goes on; the exit status tells.
-- exit: 1
-- stdout: reached the end
-- stderr: failed: {here}:20: one is two
-- stderr: failed: {here}:21: expected something true
-- stderr: failed: {here}:22: frames
-- stderr: at [2].x: 10.5, wanted 12
-- stderr: got    {1, {x = 10.5}}
-- stderr: failed: {here}:23: 1, wanted 2
-- stderr: failed: {here}:24: near
-- stderr: 1, wanted 1.5 within 0.25
-- stderr: failed: {here}:25: near nothing
-- stderr: nil, wanted 1 within 0.5
-- stderr: failed: {here}:18, called from {here}:26: from a helper
-- stderr: failed: {here}:27: functions
-- stderr: 8 of 14 expectations failed
local function helper()
  expect(false, "from a helper")
end
expect(1 == 2, "one is two")
expect(nil)
expect_eq({ 1, { x = 10.5 } }, { 1, { x = 12 } }, "frames")
expect_eq(1, 2)
expect_near(1, 1.5, 0.25, "near")
expect_near(nil, 1, 0.5, "near nothing")
helper()
expect_eq(print, pcall, "functions")

expect(expect(true, "held"), "an expectation gives whether it held")
expect_eq({ 1, { a = 2.0 } }, { 1.0, { a = 2 } }, "numbers are equal by value")
expect_eq({}, {}, "empty tables")
expect_eq(print, print, "the same function")
expect_near(1, 1.25, 0.25, "the tolerance belongs to it")
print("reached the end")
