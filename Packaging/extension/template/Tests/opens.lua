-- An application that is opened is told to the log.
local phone = boot { extension = false, extensions = { ".." } }
phone:tap(phone:icon("com.apple.mobilecal"))
phone:settle()
local log = phone:log()
expect_eq(log[#log], "<@NAME@> Opening Calendar", "the log names the application")
