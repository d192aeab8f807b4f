-- Display, lock, home button, banners and finger: what a script says to the device, and what it sees of it.
local mail = "com.apple.mobilemail"
local function locked(phone)
  local lock = phone:find { window = "lock", class = "UIWindow" }
  return lock ~= nil and not lock.hidden
end
local function refused(what, part, ...)
  local held, problem = pcall(...)
  expect(not held and tostring(problem):find(part, 1, true), what .. ": " .. tostring(problem))
end

-- locked from the start, by its passcode
local phone = boot { extension = false, passcode_locked = true }
expect(locked(phone), "it starts on the lock screen")
expect(phone:find { window = "lock", text = "10:20", visible = true }, "which shows the time")
expect(phone:find { window = "lock", text = "Sunday, March 1", visible = true }, "and the date")
phone:wait(30)
expect(phone:find { window = "lock", text = "10:21" }, "that go on")
phone:run(mail)
expect_eq(phone:foreground(), nil, "nothing is in front of a lock screen")
phone:respring()
expect(locked(phone), "a restart does not unlock it")
phone:unlock()
phone:settle()
expect(not locked(phone), "its passcode does")
phone:respring()
expect(not locked(phone), "and it stays unlocked")

-- the display
phone = boot { extension = false, passcode = true }
expect(not locked(phone), "it starts unlocked")
phone:run(mail)
phone:settle()
phone:display(false)
phone:tap { 100, 300 }
phone:wait(1)
phone:display(true)
expect(locked(phone), "on again, it shows the lock screen")
phone:drag({ 40, 400 }, 300, 0, 0.2)
phone:settle()
expect_eq(#phone:events("passcode_prompt"), 1, "sliding asks for the passcode")
expect(phone:find { window = "lock", text = "Enter Passcode", visible = true }, "on a screen of its own")
phone:home()
phone:settle()
expect(phone:find { window = "lock", text = "slide to unlock", visible = true }, "the home button goes back")
phone:unlock()
phone:unlock()
phone:settle()
expect_eq(phone:foreground(), mail, "the application is where it was")
phone:lock()
phone:lock()
expect(locked(phone), "the button at the edge does the same")
phone:lock()
phone:unlock()
phone:home()
expect(locked(phone), "a dark phone cannot be unlocked, only woken")
phone:unlock()

-- banners and the switcher
phone:banner("Hello")
expect(phone:find { window = "alert", text = "Hello" }, "a banner")
phone:settle()
expect(phone:find { window = "alert", text = "Hello", visible = true }, "that has slid in")
phone:wait(6)
expect_eq(phone:find { text = "Hello" }, nil, "and goes by itself")
phone:home_twice()
phone:settle()
expect(phone:find { class = "SBAppSwitcherCardView", visible = true }, "two clicks show the switcher")
phone:home()
phone:settle()
expect_eq(phone:find { class = "SBAppSwitcherCardView" }, nil, "and one click leaves it")
expect_eq(phone:foreground(), nil, "for the home screen")

-- the finger
phone:finger(1)
phone:finger("no_match")
expect_eq(#phone:events("warning"), 0, "a device with a sensor takes it, by number and by name")
local old = boot { extension = false, device = "iPhone 4S" }
old:finger(1)
expect_eq(#old:events("warning"), 1, "one without warns")

refused("no display", "true or false", function() phone:display() end)
refused("a display of 1", "true or false", function() phone:display(1) end)
refused("a banner without words", "the banner's text", function() phone:banner() end)
refused("a misspelt finger", "did you mean 'no_match'?", function() phone:finger("nomatch") end)
refused("a finger that is none", "a whole number", function() phone:finger(true) end)
refused("a finger below none", "negative", function() phone:finger(-1) end)
refused("an argument too many", "takes no arguments", function() phone:unlock("1234") end)
