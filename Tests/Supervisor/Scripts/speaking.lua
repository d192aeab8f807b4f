-- What a script hears and does as one who does not see the screen, on the phone and in Settings.
local function named(device, label)
  for _, element in ipairs(device:spoken()) do
    if element.label == label then return element end
  end
end
local function has(list, word)
  for _, each in ipairs(list) do
    if each == word then return true end
  end
  return false
end
local mail = "com.apple.mobilemail"

for _, ios in ipairs { "7.0", "8.1" } do
  local phone = boot { ios = ios, device = "iPhone 5s", extension = false, apps = { { id = mail, badge = 1204 } } }
  local icon = named(phone, "Mail")
  expect_eq(icon.value, "1,204 new items", "an icon says what is new")
  expect_eq(icon.view.class, "SBIconView")
  expect_eq(icon.screen, icon.view.screen, "it is where it is seen")
  expect_eq(#phone:spoken("statusbar"), 5, "what a window holds")
  expect_eq(phone:focus(), nil, "nobody reads")
  phone:activate(icon)
  phone:settle()
  expect_eq(phone:foreground(), mail, "a double tap is a tap of a finger")
  expect_eq(named(phone, "Mail"), nil, "an application covers the icons")
  phone:home()
  phone:settle()

  phone:aid("voiceover", true)
  expect_eq(phone:focus().label, "Mail", "the first below the status bar")
  phone:respring()
  expect_eq(phone:focus().label, "Mail", "it stays on")
  expect(not pcall(phone.activate, phone, icon), "an element of a home screen that is gone")

  local pane = phone:open_settings()
  expect_eq(#pane:spoken("statusbar"), 5)
  expect(has(pane:focus().traits, "header") or has(pane:focus().traits, "button"), "every process hears of it")
  phone:aid("voiceover", false)
  expect_eq(pane:focus(), nil)
  expect_eq(#phone:events("spoken"), 0, "nothing was said")
end

-- Rows follow the size of texts, those that are shown at once.
local pane = settings_app { extension = false, text_size = "S", voiceover = true }
local function height()
  for _, element in ipairs(pane:spoken("app")) do
    if has(element.traits, "button") and element.screen.y > 70 then
      return element.screen.h, pane:find { inside = element.view, class = "UILabel" }.font_size
    end
  end
end
for _, case in ipairs { { "S", 44, 15 }, { "L", 44, 17 }, { "AX5", 84, 53 } } do
  pane:aid("text_size", case[1])
  pane:settle()
  local h, size = height()
  expect_eq({ h, size }, { case[2], case[3] }, case[1])
end

-- A row with a switch is one, pages are turned and left, and the reader tells where one is.
pane:aid("text_size", "L")
pane:activate(named(pane, "Enable"))
pane:settle()
expect_eq(named(pane, "Enable").value, "1", "the switch of the row")
pane:activate(named(pane, "Configuration"))
pane:settle()
expect_eq(pane:page().title, "Configuration")
expect(pane:scroll_page("up"), "it is longer than the screen")
pane:settle()
expect_eq(pane:spoken("app")[2].label, "Configuration", "the bar comes before what lies below it")
expect(pane:escape(), "the scrub leads back")
pane:settle()
local said = {}
for _, event in ipairs(pane:events("spoken")) do table.insert(said, event.what .. " " .. event.text) end
expect_eq(said, { "screen Settings", "screen Pendix", "announcement Page 2 of 3", "screen Settings" })

-- A turned phone is read as it is held, by both ways of counting points.
for _, ios in ipairs { "7.1", "8.1" } do
  local tablet = boot { ios = ios, device = "iPad Air", extension = false }
  tablet:rotate(3)
  tablet:settle()
  local first = tablet:spoken("home")[1]
  expect_eq(first.screen, first.view.screen)
  tablet:activate(first)
  tablet:settle()
  expect(tablet:foreground(), "and touched where it lies")
  expect_eq(#tablet:spoken("home"), 0, "behind an application on its side as well")
end
