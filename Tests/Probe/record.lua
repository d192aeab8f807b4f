-- Lets the probe look at a simulated device, and does what a phone's owner is asked to do after that.
-- ARGS: device, system version, folder with the probe's library.
local device, ios, root = table.unpack(args)
local without_extension = { "/Library/MobileSubstrate/DynamicLibraries/Pendix.dylib" }
local phone = boot { device = device, ios = ios, root = root, missing_files = without_extension, passcode = true }
phone:wait(15)

phone:badge("com.apple.Preferences", 1)
phone:wait(1)
phone:badge("com.apple.Preferences", 0)
phone:wait(1)
phone:run("com.apple.Preferences")
phone:wait(2)
phone:home()
phone:wait(2)
phone:home_twice()
phone:wait(2)
phone:home()
phone:wait(2)
phone:run("com.apple.camera")
phone:wait(4)
phone:rotate(3)
phone:wait(3)
phone:rotate(1)
phone:wait(1)
phone:home()
phone:wait(2)
phone:rotate(3)
phone:wait(3)
phone:rotate(1)
phone:wait(2)
phone:hold({ 4, 250 }, 1) -- beside the icons
phone:fling({ 300, 250 }, -120, 0, 0.3)
phone:settle()
phone:reachability(true)
phone:wait(10)
phone:banner("a message")
phone:wait(6)
phone:down { 5, 300 }
phone:wait(1)
phone:lock()
phone:wait(3)
phone:up()
phone:lock()
phone:wait(1)
phone:unlock()
phone:wait(4)

expect_eq(#phone:events("crash"), 0, "the home screen bears the questions")
expect_eq(#phone:events("unrecognized"), 0, "nothing was asked that the system does not understand")
for _, event in ipairs(phone:events("warning")) do
  expect_eq(event.text, "this device has no Reachability", "nothing was warned of")
end
