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
phone:banner("a message")
phone:wait(6)
phone:lock()
phone:wait(3)
phone:lock()
phone:wait(1)
phone:unlock()
phone:wait(4)

expect_eq(#phone:events("crash"), 0, "the home screen bears the questions")
expect_eq(#phone:events("unrecognized"), 0, "nothing was asked that the system does not understand")
expect_eq(#phone:events("warning"), 0, "nothing was warned of")
