-- Boots a device on which one more library is installed, in the folder that is given, and prints what is logged.
local phone = boot{ root = args[1] }
phone:wait(0.1)
for _, line in ipairs(phone:log()) do print(line) end
