-- Without a class or a file of the system the extension goes on without that piece.
local H = require("home")
for _, class in ipairs{ "_UIBackdropView", "_UIBackdropViewSettingsPasscodePaddle", "LSStatusBarItem", "LAActivator",
  "SBReachabilityManager", "PKFingerprintGlyphView", "SBIconViewMap", "SBIconController", "SBBannerController",
  "SBLockScreenViewController", "SBUIController", "UIStatusBarItemView", "SBApplication" } do
  local phone = boot{ settings = { enable = true, glow = true }, hide_classes = { class },
    apps = { { id = H.mail, name = "Mail", badge = 1 }, { id = H.phone, name = "Phone", folder = "Social" } } }
  expect_eq(H.logged(phone, "<Pendix> Loaded!"), 1, class .. " missing: the launch goes on")
  phone:badge(H.mail, 2)
  phone:badge(H.phone, 2)
  phone:wait(2)
  phone:badge(H.mail, 0)
  phone:wait(1)
  H.no_harm(phone)
end
local frameworks = "/System/Library/Frameworks/UIKit.framework/"
local files = {}
for _, name in ipairs{ "Black_Pendix", "LockScreen_Pendix", "Black_PendixSwitcher", "LockScreen_PendixSwitcher" } do
  for _, scale in ipairs{ "", "@2x", "@3x" } do files[#files + 1] = frameworks .. name .. scale .. ".png" end
end
local phone = boot{ settings = { enable = true, glow = true }, missing_files = files, apps = H.apps(H.mail) }
phone:badge(H.mail, 1)
phone:wait(1)
expect_eq(H.logged(phone, "<Pendix> Loaded!"), 1, "without the images the launch goes on")
expect(#phone:events("missing_file") > 0, "and the missing image is told")
H.no_harm(phone)
