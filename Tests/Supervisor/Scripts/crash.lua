-- A crash is an event with its stack; the home screen boots again and the device goes on.
-- stderr: The home screen crashed at 1.5 s: SIGABRT
local phone = boot { extension = false }
phone:wait(1.5)
local view = phone:icon("com.apple.mobilemail")
local held, problem = pcall(phone.call, phone, "valueForKey:", "nonsense")
expect(not held and problem:find("crashed", 1, true), "a question has no answer then: " .. tostring(problem))
local crashes = phone:events("crash")
expect_eq(#crashes, 1, "one crash")
expect_eq({ crashes[1].t, crashes[1].signal }, { 1.5, "SIGABRT" }, "when and how")
expect(crashes[1].stack:find("callMethod", 1, true), "the stack names what ran: " .. crashes[1].stack)
expect(not pcall(phone.tap, phone, view), "a view from before is of no use")
expect(phone:icon("com.apple.mobilemail"), "the home screen is there again")
phone:wait(1)
expect_eq(phone:now(), 2.5, "time goes on")
