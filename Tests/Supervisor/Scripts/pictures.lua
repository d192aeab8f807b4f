-- Pictures land in the folder for them, under their names only.
local phone = boot { extension = false, device = "iPhone 4S" }
local path = phone:shot("plain")
expect(path:find("plain.png", 1, true), path)
expect(phone:shot("deep/er/shot"):find("deep/er/shot.png", 1, true), "folders are made")
local start = phone:now()
expect(phone:filmstrip("strip", 0.5, 3):find("strip.png", 1, true), "a film strip is a picture")
expect_eq(phone:now() - start, 0.5, "that takes its time")
for _, name in ipairs { "", "../up", "a/../../up", "/absolute" } do
  expect(not pcall(phone.shot, phone, name), "'" .. name .. "' leads out of the folder")
end
expect(not pcall(phone.filmstrip, phone, "none", 1, 0), "a strip needs a frame")
