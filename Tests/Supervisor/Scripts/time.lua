-- Time moves only when it is told to, and a wait for calm says what keeps it from coming.
local phone = boot { extension = false, clock = "2014-12-31 23:59:50" }
expect_eq(phone:now(), 0, "the clock starts when boot returns")
phone:badge("com.apple.mobilemail", 3)
phone:find { window = "home" }
expect_eq(phone:now(), 0, "nothing but waiting takes time")
for _ = 1, 60 do phone:wait(1 / 60) end
expect_near(phone:now(), 1, 1e-6, "sixty frames are a second")
phone:wait(0)
phone:settle()
expect_eq(phone:settle(), 0, "calm is calm")

local x = phone:now()
phone:tap { 5, 300 }
expect_near(phone:now() - x, 0.1, 1e-6, "a tap takes a tenth of a second")
phone:down { 5, 300 }
local held, problem = pcall(phone.settle, phone, 2)
expect(not held and problem:find("still busy after 2", 1, true) and problem:find("finger"), tostring(problem))
expect_near(phone:now() - x, 2.1, 1e-6, "the limit passes")
phone:up()
phone:settle()

local other = boot { extension = false }
expect_eq(other:now(), 0, "another phone has a clock of its own")
for _, event in ipairs(phone:events()) do expect(event.t >= 0 and event.t <= phone:now(), "events carry their time") end
