-- A class that the library names statically cannot be hidden; others can, and the library is still loaded.
-- exit: 2
-- stderr: 'UIColor' cannot be hidden: the library names it statically
local phone = boot { hide_classes = { "_UIBackdropView" } }
expect_eq(#phone:all { class = "_UIBackdropView" }, 0, "the hidden class is absent")
expect_eq(#phone:events("warning"), 0, "which is what was asked for")
boot { hide_classes = { "UIColor" } }
