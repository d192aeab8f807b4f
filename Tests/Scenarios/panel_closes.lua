-- The panel shrinks back into the indicator and leaves nothing behind, whatever closes it and whenever.
local P = require("panel")

-- A tap outside; on the way nothing counts twice.
local phone = P.boot{ blur = true }
P.open(phone)
expect_eq(P.top(phone, P.tag.screen).alpha, 1, "with `blur` the screen is blurred")
local indicator, mark = phone:indicator(), P.mark(phone)
phone:tap(P.outside(phone))
phone:tap(P.outside(phone))
phone:wait(0.2)
-- A point above the bottom centre of the item.
local point = { indicator.x + (indicator.w + 1) / 2, indicator.y + indicator.h - 5, 1, 1 }
for _, tag in ipairs{ P.tag.panel, P.tag.bubble } do P.near(P.top(phone, tag), point, "tag " .. tag .. " collapses") end
local shown = P.panel(phone).screen
expect(shown.w < 256 and shown.w > 1, "and is seen doing so")
expect(P.panel(phone).corner_radius == 0, "its corners with it")
phone:settle()
P.closed(phone)
local lines = 0
for _, event in ipairs(P.since(phone, mark, "log")) do
  if event.text == "<Pendix> Pendix's UI dismissing!" then lines = lines + 1 end
end
expect_eq(lines, 1, "a tap while it closes does nothing")
phone:wait(1)
P.no_harm(phone)

-- A second tap on the indicator, which lies under the overlay now: on the bubble it does nothing, beside it closes.
for _, device in ipairs{ "iPhone 5s", "iPhone 6", "iPad Air 2" } do
  phone = P.boot({}, { device = device })
  P.open(phone)
  local seen = P.top(phone, P.tag.bubble).alpha
  P.press_indicator(phone)
  phone:settle()
  expect_eq(P.logged(phone, "<Pendix> Loading Pendix UI!"), 1, device .. ": it is not opened again")
  if seen == 1 then
    expect_eq(#P.items(phone), 3, device .. ": the panel stays")
    P.close(phone)
  else
    P.closed(phone)
  end
end

-- Closing while it opens, and opening while it closes, at every stage.
for _, after in ipairs{ 0.02, 0.1, 0.25, 0.4, 0.48 } do
  phone = P.boot{ blur = true }
  P.press_indicator(phone)
  phone:wait(after)
  phone:tap(P.outside(phone))
  phone:settle()
  P.closed(phone)
  phone:wait(1)
  P.closed(phone)

  P.open(phone)
  phone:tap(P.outside(phone))
  phone:wait(after - 0.02)
  phone:activator()
  phone:settle()
  expect_eq(#P.overlay(phone).children, 5, "opened " .. after .. " s into the closing: one panel")
  P.near(P.panel(phone), { 32, 30, 256, 110 }, "at its place")
  expect_eq(P.ids(phone), P.names(3, 1), "complete")
  expect_eq(P.top(phone, P.tag.screen).alpha, 1, "before a blurred screen")
  expect_eq(P.overlay(phone).interactive, true, "and taking touches")
  phone:wait(2)
  expect_eq(#P.items(phone), 3, "it stays")
  P.close(phone)

  -- Both at once, twice.
  P.press_indicator(phone)
  for _ = 1, 2 do
    phone:wait(after)
    phone:tap(P.outside(phone))
    phone:wait(after / 2)
    phone:activator()
  end
  phone:settle()
  expect_eq(#P.items(phone), 3, "open in the end")
  P.close(phone)
  P.no_harm(phone)
end

-- The last badge goes while the panel is shown, and with `hide_t` the indicator with it.
for _, ios in ipairs{ "7.1", "8.1" } do
  phone = P.boot({ hide_t = true }, { ios = ios, apps = P.numbered(1) })
  P.open(phone)
  local logo = P.top(phone, P.tag.logo)
  P.swipe_down(phone, P.items(phone)[1])
  phone:settle()
  phone:wait(0.5)
  expect_eq(phone:indicator().visible, false, ios .. ": the indicator is gone")
  expect_eq(P.empty_text(phone).text, "No Badges", ios .. ": the panel stays and says why")
  phone:tap(P.outside(phone))
  phone:wait(0.1)
  P.near(P.panel(phone), { logo.x + (logo.w + 1) / 2, logo.y + logo.h - 5, 1, 1 }, ios .. ": it shrinks into the logo")
  phone:settle()
  P.closed(phone)
  phone:badge(P.app(1), 2)
  P.open(phone)
  expect_eq(P.ids(phone), { P.app(1) }, ios .. ": and opens again with the next badge")
  P.no_harm(phone)
end

-- Closed while an application is being taken off: what was asked for is done, and nobody else is forgotten.
for _, after in ipairs{ 0.05, 0.25, 0.35, 0.6, 0.75 } do
  for _, again in ipairs{ false, true } do
    local what = "closed " .. after .. " s after a swipe" .. (again and ", and opened again" or "")
    phone = P.boot({}, { apps = P.numbered(4) })
    P.open(phone)
    P.swipe_down(phone, P.items(phone)[2])
    phone:wait(after)
    phone:tap(P.outside(phone))
    if again then
      phone:wait(0.1)
      phone:activator()
      phone:settle()
      expect_eq(P.ids(phone), { P.app(4), P.app(2), P.app(1) }, what .. ": the others are listed")
      P.close(phone)
    end
    phone:settle()
    phone:wait(1)
    P.closed(phone)
    local set = phone:events("badge_set")
    expect_eq({ set[#set].id, set[#set].value }, { P.app(3), 0 }, what .. ": the badge is cleared")
    expect_eq(phone:call("checkBadges"), true, what .. ": the others' badges still count")
    P.open(phone)
    expect_eq(P.ids(phone), { P.app(4), P.app(2), P.app(1) }, what .. ": and are listed the next time")
    P.no_harm(phone)
  end
end
