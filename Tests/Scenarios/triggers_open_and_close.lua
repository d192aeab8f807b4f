-- What opens and closes the panel apart from the indicator: an Activator event, the home button, banners.
local L = require("lock")
local error_line = "<Pendix> Error while showing UI!"

local function marks(phone)
  local width = 0
  for i in ipairs(L.ids) do
    local item = L.item(phone, i)
    local mark = item and phone:find{ parent = item, tag = -1 }
    if mark then width = width + mark.w end
  end
  return width
end
local function clicks(phone) return L.ran(phone, "SBUIController", "clickedMenuButton") end
local function double_clicks(phone) return L.ran(phone, "SBUIController", "handleMenuDoubleTap") end
local function twice(phone) phone:home_twice(); phone:settle() end
local function click(phone) phone:home(); phone:settle() end
local function event(phone) phone:activator(); phone:settle() end

for _, ios in ipairs{ "7.1", "8.0", "8.1" } do
  local what = ios .. ": "
  local function is(phone, wanted, message) expect_eq(L.is_open(phone), wanted, what .. message) end

  -- Activator, on the home screen and over an application.
  local phone = L.boot({}, { device = "iPhone 5s", ios = ios })
  for _ = 1, 2 do
    event(phone)
    is(phone, true, "an event opens")
    event(phone)
    is(phone, false, "the next closes")
  end
  phone:run(L.ids[1])
  phone:settle()
  event(phone)
  is(phone, true, "over an application")
  expect(L.item(phone, 1) == nil and L.item(phone, 2), what .. "without that application")
  event(phone)
  phone:set("enable", false)
  event(phone)
  is(phone, true, "an event does not look at the switch")
  event(phone)
  is(phone, false, "and closes")
  phone:wait(1.1)
  expect_eq(phone:indicator().visible, false, what .. "the poll has hidden the indicator")
  event(phone)
  is(phone, false, "out of which nothing opens then")
  expect_eq(L.logged(phone, error_line), 1, what .. "which is said")
  L.no_harm(phone)

  -- Home, one click: editing, the panel, the system.
  phone = L.boot({ close = true }, { device = "iPhone 5s", ios = ios })
  L.open(phone)
  phone:hold(L.item(phone, 1), 2)
  phone:settle()
  expect(marks(phone) > 0, what .. "a long press shows the close marks")
  click(phone)
  expect_eq({ marks(phone), L.is_open(phone), clicks(phone) }, { 0, true, 0 }, what .. "a click ends editing alone")
  phone:tap(L.item(phone, 1))
  phone:settle()
  expect_eq(phone:foreground(), L.ids[1], what .. "applications open again")
  event(phone)
  click(phone)
  expect_eq({ L.is_open(phone), clicks(phone), phone:foreground() }, { false, 0, L.ids[1] },
    what .. "a click closes the panel alone")
  click(phone)
  expect_eq({ clicks(phone), phone:foreground() }, { 1, nil }, what .. "the next reaches the system")
  L.no_harm(phone)

  -- Home, two clicks: taken over in running mode only.
  phone = L.boot({ close = true }, { device = "iPhone 5s", ios = ios })
  twice(phone)
  expect_eq({ L.is_open(phone), double_clicks(phone) }, { false, 1 }, what .. "in badge mode the switcher opens")
  click(phone)
  L.open(phone)
  phone:hold(L.item(phone, 1), 2)
  phone:settle()
  twice(phone)
  expect_eq({ marks(phone), L.is_open(phone), double_clicks(phone) }, { 0, true, 1 }, what .. "ends editing")
  twice(phone)
  expect_eq({ L.is_open(phone), double_clicks(phone) }, { false, 1 }, what .. "closes the panel")
  phone:set("badge", true)
  twice(phone)
  expect_eq({ L.is_open(phone), double_clicks(phone) }, { true, 1 }, what .. "in running mode the panel opens")
  twice(phone)
  is(phone, false, "and closes")
  phone:set("enable", false)
  twice(phone)
  expect_eq({ L.is_open(phone), double_clicks(phone) }, { false, 2 }, what .. "switched off, the system's opens")
  click(phone)
  phone:set{ enable = true, hide = true }
  phone:wait(1.1)
  twice(phone)
  expect_eq({ L.is_open(phone), double_clicks(phone), L.logged(phone, error_line) }, { false, 3, 1 },
    what .. "without an indicator the system's opens")
  L.no_harm(phone)

  -- A banner closes the panel before it comes, and leaves a closed one closed.
  phone = L.boot({}, { device = "iPhone 5s", ios = ios })
  phone:banner("One")
  phone:wait(6)
  L.open(phone)
  phone:banner("Two")
  local order = {}
  for _, e in ipairs(phone:events()) do
    if e.kind == "log" and e.text:find("dismissing", 1, true) then order[#order + 1] = "closing" end
    if e.selector == "_presentBannerForContext:reason:" then order[#order + 1] = "banner" end
  end
  expect_eq(order, { "banner", "closing", "banner" }, what .. "first the panel goes, then the banner comes")
  phone:settle()
  is(phone, false, "a banner closes the panel")
  L.no_harm(phone)
end
