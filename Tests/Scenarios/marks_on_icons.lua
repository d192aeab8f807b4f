-- The home screen's badges hidden and replaced by a small mark: where it stands, when it comes and goes, what colour
-- it has, and which applications never get one.
local H = require("home")

local O = require("overlay")
local mark = O.icon_mark
local function marks(phone, id) return #phone:all{ parent = phone:icon(id), tag = O.tags.icon_mark } end
local function badge(phone, id) return phone:find{ parent = phone:icon(id), class = "SBIconBadgeView" } end
local all_on = { enable = true, b = true, newb = true }

local function with(more)
  local t = {}
  for k, v in pairs(all_on) do t[k] = v end
  for k, v in pairs(more or {}) do t[k] = v end
  return t
end

local function phone_with(settings, options)
  local o = { device = "iPhone 5s", settings = settings, apps = H.apps(H.mail, H.phone, H.clock) }
  for k, v in pairs(options or {}) do o[k] = v end
  return boot(o)
end

-- Which switches it takes.
for _, case in ipairs{
  { settings = { enable = true }, hidden = false, marked = false },
  { settings = { enable = true, newb = true }, hidden = false, marked = false },
  { settings = { enable = true, b = true }, hidden = true, marked = false },
  { settings = { b = true, newb = true }, hidden = false, marked = false },
  { settings = all_on, hidden = true, marked = true },
  { settings = with{ [H.mail] = { badge_perapp = true } }, hidden = true, marked = false },
  { settings = with{ [H.mail] = { badge_perapp = false, hide_perapp = true } }, hidden = true, marked = true },
  { settings = with{ [H.mail] = { badge_perapp = { a = 1 } } }, hidden = true, marked = true },
  { settings = with{ [H.mail] = "badge_perapp" }, hidden = true, marked = true },
} do
  local phone = phone_with(case.settings)
  phone:badge(H.mail, 2)
  local what = string.format("%s: ", case.settings)
  expect_eq(badge(phone, H.mail).hidden, case.hidden, what .. "the badge is hidden")
  expect_eq(marks(phone, H.mail), case.marked and 1 or 0, what .. "a mark stands there")
  H.no_harm(phone)
end

-- Its place, its life with the badge, on both versions, with and without `fast`.
for _, ios in ipairs{ "7.1", "8.1" } do
  for _, fast in ipairs{ false, true } do
    local phone = phone_with(with{ fast = fast }, { ios = ios })
    local share = fast and 0.25 or 1
    local what = ios .. (fast and ", fast: " or ": ")
    local function fades(id, to, seconds, message)
      local start = mark(phone, id).presented_alpha
      phone:wait(seconds * 0.5)
      local half = mark(phone, id).presented_alpha
      expect(half > math.min(start, to) and half < math.max(start, to), what .. message .. ": half way")
      expect_near(mark(phone, id).alpha, to, 0.001, what .. message .. ": where it goes")
      phone:wait(seconds * 0.45)
      expect(math.abs(mark(phone, id).presented_alpha - to) > 0.0001, what .. message .. ": not done before its time")
    end

    phone:badge(H.mail, 2)
    local m = mark(phone, H.mail)
    expect_eq({ m.x, m.y, m.w, m.h }, { 50, 0, 10, 10 }, what .. "in the icon's top right corner")
    expect_eq(m.tint, "#ff0000ff", what .. "red when nothing is chosen")
    expect_eq(m.alpha, 1, what .. "at once")
    phone:settle()

    phone:badge(H.mail, 3)
    phone:settle()
    expect_eq(marks(phone, H.mail), 1, what .. "two to three keeps the one mark")
    expect_eq(mark(phone, H.mail).alpha, 1, what .. "and keeps it in sight")

    phone:badge(H.mail, 0)
    fades(H.mail, 0, 0.2 * share, "to zero")
    phone:wait(0.1)
    expect_eq(marks(phone, H.mail), 0, what .. "then it is gone")

    phone:badge(H.mail, 4)
    phone:badge(H.mail, 0)
    phone:wait(0.02)
    phone:badge(H.mail, 5)
    phone:settle()
    expect_eq(marks(phone, H.mail), 1, what .. "a badge that comes back while it fades keeps it")
    expect_eq(mark(phone, H.mail).presented_alpha, 1, what .. "in full")

    phone:run(H.mail)
    fades(H.mail, 0, 0.2 * share, "opening the application")
    phone:settle()
    expect_eq(marks(phone, H.mail), 1, what .. "an open application keeps its mark out of sight")
    phone:home()
    fades(H.mail, 1, 0.5 * share, "leaving the application")
    phone:settle()
    expect_eq(mark(phone, H.mail).presented_alpha, 1, what .. "back in full")

    -- From one application straight to the other, which has none.
    phone:run(H.mail)
    phone:settle()
    phone:run(H.phone)
    phone:settle()
    expect_eq(mark(phone, H.mail).presented_alpha, 1, what .. "another application in front is as good as leaving")
    H.no_harm(phone)
  end
end

-- A change of the settings counts at the badge's next change.
do
  local phone = phone_with(with{ colors = "green" })
  phone:badge(H.mail, 1)
  phone:badge(H.phone, 1)
  expect_eq(mark(phone, H.mail).tint, "#00ff00ff", "the chosen colour")
  phone:set("colors", "blue")
  phone:badge(H.mail, 2)
  phone:settle()
  expect_eq(mark(phone, H.mail).tint, "#00ff00ff", "a mark keeps the colour that it was made with")
  phone:badge(H.mail, 0)
  phone:settle()
  phone:badge(H.mail, 1)
  expect_eq(mark(phone, H.mail).tint, "#0000ffff", "a new one has the new colour")
  phone:set("colors", "Blue")
  phone:badge(H.clock, 1)
  expect_eq(mark(phone, H.clock).tint, "#ff0000ff", "a name that is none is red")
  -- A mark that goes for a setting's sake leaves the standard badge in its place; the mark that comes back takes it.
  local function shows(id, wanted, what)
    expect_eq({ mark = marks(phone, id), badge = not badge(phone, id).hidden }, wanted, what)
  end
  local marked, plain = { mark = 1, badge = false }, { mark = 0, badge = true }
  phone:set(H.phone, { badge_perapp = true })
  phone:badge(H.phone, 2)
  shows(H.phone, plain, "an application that is taken out loses its mark, and is unread all the same")
  phone:set(H.phone, { badge_perapp = false })
  phone:badge(H.phone, 3)
  shows(H.phone, marked, "and gets it back")
  for i, key in ipairs{ "b", "enable", "newb" } do
    phone:set(key, false)
    phone:badge(H.mail, 10 * i)
    shows(H.mail, plain, "without " .. key .. " the mark goes")
    phone:badge(H.mail, 10 * i + 1)
    shows(H.mail, plain, "without " .. key .. " the badge goes on to show")
    phone:set(key, true)
    phone:badge(H.mail, 10 * i + 2)
    shows(H.mail, marked, "and with it the mark comes back")
  end
  H.no_harm(phone)
end

-- Without marks it is the same: hidden badges show again where `b` or `enable` is off when their icon is looked at, those
-- of applications that never get a mark too.
for _, key in ipairs{ "b", "enable" } do
  local phone = phone_with{ enable = true, b = true, [H.phone] = { badge_perapp = true } }
  for _, id in ipairs{ H.mail, H.phone } do
    phone:badge(id, 1)
    expect_eq(badge(phone, id).hidden, true, key .. ": hidden")
    phone:set(key, false)
    phone:badge(id, 2)
    expect_eq(badge(phone, id).hidden, false, key .. ": shown again without the setting")
    phone:set(key, true)
  end
  H.no_harm(phone)
end

-- Without its picture a mark has no size; icons in folders and without a view do no harm.
do
  local image = "/Library/Application Support/Pendix/pendixMiniNotification"
  local folder = { { id = H.mail, name = "Mail" }, { id = H.phone, name = "Phone", folder = "Social" } }
  local phone = phone_with(with{ auto = true }, { apps = folder,
    missing_files = { image .. ".png", image .. "@2x.png", image .. "@3x.png" } })
  phone:badge(H.mail, 1)
  local m = mark(phone, H.mail)
  expect_eq({ m.x, m.w, m.h }, { 60, 0, 0 }, "a mark without a picture")
  phone:badge(H.phone, 3)
  for _, id in ipairs{ H.mail, H.phone, "com.apple.WebViewService" } do
    phone:run(id)
    phone:settle()
    phone:home()
    phone:settle()
  end
  H.no_harm(phone)
end

-- A folder has no image to take a colour from.
do
  local phone = phone_with(with{ auto = true, colors = "purple" }, { apps = {
    { id = H.mail, name = "Mail" }, { id = H.phone, name = "Phone", folder = "Social" } } })
  phone:badge(H.phone, 3)
  phone:badge(H.mail, 3)
  local folder = phone:find{ window = "home", class = "SBFolderIconView" }
  expect_eq(phone:find{ parent = folder, tag = 1953 }.tint, "#800080ff", "a folder's mark has the chosen colour")
  expect(mark(phone, H.mail).tint ~= "#800080ff", "an application's its own")
  H.no_harm(phone)
end

-- Pictures: both kinds of tint.
for name, setting in pairs{ orange = { colors = "orange" }, automatic = { auto = true } } do
  local phone = boot{ device = "iPhone 6", settings = with(setting) }
  local n = 0
  for _, id in ipairs{ H.mail, H.phone, H.clock, "com.apple.MobileSMS", "com.apple.mobilecal", "com.apple.Preferences" } do
    n = n + 1
    phone:badge(id, n)
  end
  phone:settle()
  phone:shot("marks-" .. name)
  local seen = {}
  for _, id in ipairs{ H.mail, H.phone, "com.apple.mobilecal" } do seen[mark(phone, id).tint] = true end
  local kinds = 0
  for _ in pairs(seen) do kinds = kinds + 1 end
  expect_eq(kinds, setting.auto and 3 or 1, name .. ": one colour for all, or each icon's own")
end
