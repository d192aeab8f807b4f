-- A device outlives what an extension does to its home screen; every trouble is an event at its time.
-- stderr: The home screen crashed at 1.5 s: SIGABRT
-- stderr: The home screen crashed at 3 s: SIGABRT
-- stderr: The home screen crashed at 2 s: exit 3
local root = args[1]
local function times(phone, kind)
  local list = {}
  for i, event in ipairs(phone:events(kind)) do list[i] = event.t end
  return list
end

local phone = boot { root = root, settings = { crash_after = 1.5 } }
local view = phone:find { window = "home" }
phone:wait(4)
expect_eq(phone:now(), 4, "a crash takes no time")
expect_eq(times(phone, "crash"), { 1.5, 3 }, "the extension is loaded again, and crashes again")
expect_eq(phone:events("crash")[1].signal, "SIGABRT", "the signal has a name")
expect(phone:events("crash")[1].stack:find("Troublemaker.mm:", 1, true), phone:events("crash")[1].stack)
expect(not pcall(phone.tap, phone, view), "views from before are of no use")
phone:set("crash_after", nil)
phone:respring()
phone:wait(4)
expect_eq(#phone:events("crash"), 2, "settings outlive the home screen")

phone = boot { root = root, settings = { killall_after = 1 } }
phone:badge("com.apple.mobilemail", 5)
phone:tap { 5, 300 }
phone:wait(2)
expect_eq(times(phone, "respring"), { 1, 2 }, "the command restarts the home screen at once")
expect_near(phone:now(), 2.1, 1e-6, "in no time")
expect_eq(#phone:events("crash"), 0, "which is no crash")
phone:down { 5, 300 }
phone:wait(1)
expect(not pcall(phone.up, phone), "a finger that was down before is not any more")

phone = boot { root = root, settings = { exit_after = 2 } }
phone:drag({ 300, 300 }, 0, 50, 3)
expect_eq(phone:events("crash")[1].signal, "exit 3", "leaving is as bad as a crash")
expect(phone:find { window = "home" }, "and mended like one")
