-- Touches land where a finger would put them, and a script is told when that is not where it aimed.
local phone = boot { extension = false }
local function refused(part, ...)
  local held, problem = pcall(...)
  expect(not held and problem:find(part, 1, true), tostring(problem))
end
refused("not down", phone.up, phone)
refused("not down", phone.move, phone, 1, 1)
phone:down { 5, 300 }
refused("down already", phone.down, phone, { 5, 300 })
phone:up()
phone:settle()

local mail = "com.apple.mobilemail"
phone:tap(phone:icon(mail))
phone:settle()
expect_eq(phone:foreground(), mail, "a tap on an icon opens the application")
expect_eq(#phone:events("launch"), 1, "once")
phone:home()
phone:settle()
expect_eq(phone:foreground(), nil, "one click leads home")
phone:hold({ 5, 300 }, 0.5)
phone:settle()

-- A finger on a view that a window covers touches the window.
phone:run(mail)
phone:settle()
expect_eq(#phone:events("warning"), 0, "no touch went astray so far")
phone:tap(phone:icon("com.apple.Maps"))
phone:settle()
local warnings = phone:events("warning")
expect(#warnings == 1 and warnings[1].text:find("lands on", 1, true), "the script hears that something lay above")
expect_eq(phone:foreground(), mail, "and the touch did nothing below")

-- Pages scroll under a drag, and a fling goes on by itself.
phone:home()
phone:settle()
local start = phone:now()
phone:drag({ 300, 300 }, 0, 40, 0.5)
expect_near(phone:now() - start, 0.6, 1e-6, "a drag takes its time and rests for a tenth of a second")
start = phone:now()
phone:fling({ 300, 300 }, -20, 40, 0.25)
expect_near(phone:now() - start, 0.25, 1e-6, "a fling does not rest")
phone:settle()
