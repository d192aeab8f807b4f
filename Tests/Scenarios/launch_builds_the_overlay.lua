-- The launch leaves an empty overlay above the status bar that lets every touch through, and registers with the
-- gesture launcher.
local H = require("home")
local phone = boot{ settings = { enable = true } }
local window = phone:find{ window = "overlay", class = "UIWindow" }
expect_eq(window.level, 1000 + 532, "the overlay lies above the status bar")
expect(not window.hidden, "and is not hidden")
expect_eq(window.background, nil, "and is clear")
expect_eq({ window.x, window.y, window.w, window.h }, { 0, 0, 375, 667 }, "and covers the screen")
expect_eq(window.interactive, false, "and takes no touches")

expect_eq(#window.children, 2, "it holds two views")
local backdrop, dismiss = window.children[1], window.children[2]
expect_eq(backdrop.tag, 21, "the screen's backdrop lies below")
expect_eq(backdrop.class, "_UIBackdropView", "which blurs")
expect_eq(backdrop.alpha, 0, "but not yet")
expect_eq(dismiss.tag, -1, "the dismiss view lies above")
expect_eq(dismiss.background, nil, "and is clear")
expect_eq(dismiss.gestures, { "UITapGestureRecognizer" }, "and answers a tap")
for _, view in ipairs(window.children) do
  expect_eq({ view.w, view.h }, { 375, 667 }, "tag " .. view.tag .. " covers the screen")
end

phone:tap(phone:icon(H.mail))
phone:settle()
expect_eq(phone:foreground(), H.mail, "a touch on an icon goes through the overlay")

local names = {}
for i, e in ipairs(phone:events("listener")) do names[i] = e.name end
expect_eq(names, { "org.quillhub.Pendix" }, "one listener is registered")
H.no_harm(phone)
