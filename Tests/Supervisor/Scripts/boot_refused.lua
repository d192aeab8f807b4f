-- A boot that is wrong ends the script with its own exit status, unless the script catches it.
-- exit: 2
-- stderr: error:
-- stderr: {name}:11: boot: unknown option 'devise'; did you mean 'device'?
local held, problem = pcall(boot, { device = "iPhone 4", ios = "8.3" })
expect(not held and problem:find("no iPhone 4 ever ran iOS 8.3", 1, true), tostring(problem))
held, problem = pcall(boot, { apps = { { id = print } } })
expect(not held and problem:find("not a function", 1, true), tostring(problem))
held, problem = pcall(boot, { 1, 2, device = "iPhone 5" })
expect(not held and problem:find("must be a list or have strings as keys", 1, true), tostring(problem))
boot { devise = "iPhone 5" }
