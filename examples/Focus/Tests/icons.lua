-- Icons without a badge are paler, and one comes forward when it gets one.
local mail, calendar = "com.apple.mobilemail", "com.apple.mobilecal"

test("icons step back without news and come forward with it", function()
  local phone = boot { extension = false, extensions = { ".." } }
  local function strength(id) return phone:icon(id).alpha end
  expect_near(strength(mail), 0.4, 0.01, "without news it steps back")
  phone:badge(mail, 3)
  expect_eq(strength(mail), 1, "with a badge it comes forward")
  expect_near(strength(calendar), 0.4, 0.01, "and no other")
  phone:settle()
  phone:shot("focus")
  phone:badge(mail, 0)
  expect_near(strength(mail), 0.4, 0.01, "read, it goes back")
end)

test("it works beside another extension", function()
  local phone = boot { extensions = { ".." }, settings = { enable = true } }
  phone:badge(mail, 3)
  expect_eq(phone:icon(mail).alpha, 1, "with a badge it comes forward")
  phone:tap(phone:indicator().view)
  phone:settle()
  expect(phone:find { window = "overlay", text = "Mail" }, "the other's panel opens")
  expect_eq(#phone:events("crash"), 0, "nothing crashed")
end)
