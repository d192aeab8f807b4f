-- Who stands on the strip, in which order and how many side by side.
local P = require("panel")
local versions = { "7.1", "8.1" }
local function opened(settings, options)
  local phone = P.boot(settings, options)
  P.open(phone)
  return phone
end

for _, ios in ipairs(versions) do
  -- Running mode: the switcher's order, without the one in front.
  local running = { ios = ios, apps = P.numbered(4, { running = true }) }
  running.apps[3].badge = 0
  local phone = P.boot({ badge = true }, running)
  phone:run(P.app(2))
  P.open(phone)
  expect_eq(P.ids(phone), { P.app(1), P.app(3), P.app(4) }, ios .. ": the application in front is left out")
  expect_eq(P.sub(phone, P.item(phone, P.app(3)), P.tag.badge).hidden, true, ios .. ": no badge without a count")
  expect_eq(P.sub(phone, P.item(phone, P.app(4)), P.tag.badge).hidden, false, ios .. ": and one with a count")
  expect_eq(phone:foreground(), P.app(2), ios .. ": the application stays in front")
  phone:tap(P.item(phone, P.app(4)))
  phone:settle()
  expect_eq(phone:foreground(), P.app(4), ios .. ": until another is opened")
  P.open(phone)
  expect_eq(P.ids(phone), { P.app(2), P.app(1), P.app(3) }, ios .. ": which then is left out, the other first")

  -- The same in badge mode.
  phone = P.boot({}, { ios = ios })
  phone:run(P.app(2))
  P.open(phone)
  expect_eq(P.ids(phone), { P.app(3), P.app(1) }, ios .. ": in badge mode too")

  -- The newest change comes first; what is hidden, has no icon of its own or is the system's helper never shows.
  local apps = P.numbered(3)
  local helpers = { "com.apple.SiriViewService", "com.apple.PrintKit.Print-Center", "com.apple.uikit.PrintStatus" }
  for i, id in ipairs(helpers) do
    apps[3 + i] = { id = id, name = "Helper " .. i, badge = 1, running = true }
  end
  apps[7] = { id = "org.example.blank", name = "Blank", badge = 1, running = true, icon = false }
  for i = 1, 3 do apps[i].running = true end
  for _, mode in ipairs{ false, true } do
    phone = P.boot({ badge = mode, [P.app(2)] = { hide_perapp = true } }, { ios = ios, apps = apps })
    phone:badge(P.app(1), 8)
    P.open(phone)
    expect_eq(P.ids(phone), { P.app(1), P.app(3) }, ios .. ": only the others are listed, running " .. tostring(mode))
    P.no_harm(phone)
  end
end

-- An application in a folder is listed as well.
local folded = P.numbered(2)
folded[2].folder = "Social"
expect_eq(P.ids(opened({}, { apps = folded })), P.names(2, 1), "one in a folder too")

-- Nobody to list.
for _, mode in ipairs{ false, true } do
  local phone = opened({ badge = mode }, { apps = P.numbered(2, { badge = 0 }) })
  local text = P.empty_text(phone)
  P.near(text, { 0, 0, 256, 110 }, "the text fills the strip")
  expect_eq({ text.text, text.font, text.font_size, text.text_color, text.alpha },
    { mode and "No Running Apps" or "No Badges", "HelveticaNeue", 16, "#ffffffff", 1 }, "an empty panel says why")
  expect_eq(P.strip(phone).scroll.content_w, 257, "and can bounce")
  P.close(phone)
  P.no_harm(phone)
end

-- How many stand side by side: three on a phone, four on a tablet, or as told; nonsense counts as not told.
-- More than three on a small screen stand three points narrower.
for _, case in ipairs{ { nil, 3, 60 }, { 0, 3, 60 }, { -2, 3, 60 }, { "x", 3, 60 }, { 1e300, 3, 60 }, { "4", 4, 57 }, { 2, 2, 60 },
  { 1, 1, 60 }, { 4, 4, 57 }, { 4, 4, 60, "iPhone 6" }, { nil, 4, 76, "iPad Air 2" }, { 0, 4, 76, "iPad Air 2" } } do
  local amount, rows, width, device = case[1], case[2], case[3], case[4] or "iPhone 5s"
  for _, paging in ipairs{ false, true } do
    local phone = opened({ amount = amount, paging = paging }, { device = device, apps = P.numbered(9) })
    local what = device .. ", amount " .. tostring(amount) .. (paging and ", paged" or "")
    local items, strip = P.items(phone), P.strip(phone)
    local gap = (strip.w - rows * width) / (rows + 1)
    for i, item in ipairs(items) do
      expect_near(item.w, width, 0.01, what .. ": width")
      expect_near(item.x, gap + (i - 1) * (gap + width) + (paging and (i - 1) // rows * gap or 0), 0.01, what .. ": x")
      expect_near(P.sub(phone, item, P.tag.icon).w, width, 0.01, what .. ": the icon is as wide")
    end
    if paging then
      local pages = -(-9 // rows)
      expect_eq(#P.part(phone, P.tag.dots).children, pages, what .. ": pages")
      expect_near(strip.scroll.content_w, pages * strip.w, 0.01, what .. ": content")
    end
  end
end
