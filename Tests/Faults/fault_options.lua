-- The faults that a device can be booted with reach the library and nobody else, and a fault that cannot be is told.
local apps = { { id = "org.example.ada", name = "Ada", badge = 1 } }
local function phone_with(options)
  options.apps, options.settings = apps, { enable = true }
  return boot(options)
end
local function warnings(phone) return #phone:events("warning") end
local function originals(phone, selector)
  local n = 0
  for _, event in ipairs(phone:events("original")) do
    if event.selector == selector then n = n + 1 end
  end
  return n
end

-- A hidden method is not hooked, and the system goes on calling it.
local phone = phone_with{}
expect(originals(phone, "_resizeForTextImage:") > 0, "hooked as a rule")
phone = phone_with{ hide_methods = { "SBIconBadgeView _resizeForTextImage:" } }
expect_eq(originals(phone, "_resizeForTextImage:"), 0, "not hooked when it is hidden")
expect(phone:find{ class = "SBIconBadgeView" } ~= nil, "the system draws its badges")
expect_eq(warnings(phone), 0, "and nobody was surprised")

-- A method that gives nil gives it to the library alone.
phone = phone_with{ nil_methods = { "SBIconController +sharedInstance", "SBIconViewMap +homescreenMap" } }
phone:activator()
phone:settle()
expect_eq(phone:find{ window = "overlay", name = "org.example.ada" }, nil, "the library finds no icon")
expect(phone:icon("org.example.ada") ~= nil, "the home screen has it")

-- Writes: at the making of the file or at its moving, for so many times.
for _, case in ipairs{ { { error = "EACCES" }, nil }, { { call = "rename" }, nil }, { { call = "open", first = 2 }, "1" },
  { { call = "rename", first = 2, times = 1 }, "1" }, { { path = "/var/mobile/Documents" }, "1" } } do
  case[1].path = case[1].path or "/var/mobile/Library/Preferences/org.quillhub"
  phone = phone_with{ fail_writes = { case[1] } }
  expect_eq(phone:settings(), { enable = true, hasTouchID = case[2] }, "the launch's own write: " .. tostring(case[1]))
end

-- What is not there.
expect_eq(warnings(phone_with{ hide_methods = { "SBIconView nothing", "NoSuchClass icon" } }), 2, "two methods of nobody")
expect_eq(warnings(phone_with{ nil_methods = { "SBIconView +icon" } }), 1, "an instance method is no class method")
for _, options in ipairs{ { hide_methods = { "icon" } }, { nil_methods = { "SBIconView" } },
  { nil_methods = { "SBIconView +defaultIconSize" } } } do
  local booted, why = pcall(phone_with, options)
  expect(not booted and tostring(why):find("boot:"), "refused: " .. tostring(options))
end
