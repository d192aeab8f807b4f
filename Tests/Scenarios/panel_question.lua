-- A long press asks whether to clear everything: text, two buttons and the strip fill the grown panel without
-- covering one another; both answers take the question away.
local P = require("panel")
local function asked(phone, what, y)
  -- 110 + 110 = 65 of text, 45 of buttons and the strip.
  local panel = P.panel(phone)
  P.near(panel, { 32, y, 256, 220 }, what .. ": the panel grows")
  local text, cancel, ok = P.part(phone, P.tag.text), P.part(phone, P.tag.cancel), P.part(phone, P.tag.ok)
  P.near(text, { 0, -45, 256, 65 }, what .. ": text")
  P.near(cancel, { 0, 20, 127.5, 45 }, what .. ": cancel")
  P.near(ok, { 128.5, 20, 127.5, 45 }, what .. ": ok")
  expect_eq({ cancel.title, ok.title }, { "Cancel", "OK" }, what .. ": titles")
  expect_eq({ text.font, text.font_size }, { "HelveticaNeue-Light", 20 }, what .. ": font")
  local strip = P.strip(phone)
  expect_eq(strip.interactive, false, what .. ": the strip takes no touches")
  local top = panel.screen.y
  expect_eq({ text.screen.y - top, cancel.screen.y - top, strip.screen.y - top }, { 0, 65, 110 }, what .. ": fills")
  for _, tag in ipairs{ P.tag.text, P.tag.cancel, P.tag.ok } do
    local copies = phone:all{ parent = P.content(phone), tag = tag }
    expect_eq(#copies, #P.items(phone), what .. ": once for every item")
    for i, copy in ipairs(copies) do expect_eq(copy.hidden, i < #copies, what .. ": of which the last one is seen") end
    expect_eq(copies[#copies].presented_alpha, 1, what .. ": wholly")
  end
end
-- The answers come when the icons have made way, and go before these return.
local function never_crosses(phone, what, from, to)
  local icons, seen = P.items(phone), {}
  for step = 0, 28 do
    for _, tag in ipairs{ P.tag.cancel, P.tag.ok } do
      local button = P.seen(phone, tag)
      if button then
        seen[#seen + 1] = button.presented_alpha
        for _, icon in ipairs(icons) do
          local badge = P.sub(phone, phone:again(icon), P.tag.badge).screen
          local covers = badge.y < button.screen.y + button.screen.h and badge.y + badge.h > button.screen.y
          expect(not covers or button.presented_alpha < 0.15,
            what .. (": after %d frames an answer of alpha %.2f lies on an icon"):format(step, button.presented_alpha))
        end
      end
    end
    phone:wait(1 / 60)
  end
  expect_near(seen[1], from, 0.05, what .. ": at first")
  expect_near(seen[#seen], to, 0.2, what .. ": in the end")
end
local function gone(phone, what, y)
  for _, tag in ipairs{ P.tag.text, P.tag.cancel, P.tag.ok } do
    expect_eq(P.part(phone, tag), nil, what .. ": nothing of the question is left")
  end
  P.near(P.panel(phone), { 32, y, 256, 110 }, what .. ": the panel shrinks back")
  P.near(P.content(phone), { 0, 0, 256, 110 }, what .. ": with its content")
  P.near(P.strip(phone), { 0, 0, 256, 110 }, what .. ": and its strip")
  expect_eq(P.strip(phone).interactive, true, what .. ": which takes touches again")
end

-- On a screen of 320 x 568: at the top y is 30; in the middle (568 - h) / 2; at the bottom 568 - h - 32.
for _, case in ipairs{ { {}, 30, 30 }, { { rech = true, position = "middle" }, 229, 174 },
  { { rech = true, position = "bottom" }, 426, 316 }, { { position = "middle" }, 30, 30 } } do
  local what = case[1].position or "top"
  local phone = P.boot(case[1])
  P.open(phone)
  expect_near(P.panel(phone).y, case[2], 0.01, what .. ": place")
  local mark = P.mark(phone)
  P.long_press(phone, P.items(phone)[2])
  asked(phone, what, case[3])
  expect_eq(P.part(phone, P.tag.text).text, "Clear all badges?", what .. ": text")
  phone:tap(P.part(phone, P.tag.cancel))
  phone:settle()
  gone(phone, what, case[2])
  expect_eq(#P.since(phone, mark, "badge_set"), 0, what .. ": cancelling clears nothing")
  P.long_press(phone, P.items(phone)[1])
  asked(phone, what .. " again", case[3])
  phone:tap(P.part(phone, P.tag.ok))
  phone:settle()
  gone(phone, what .. " again", case[2])
  local cleared = {}
  for i, event in ipairs(P.since(phone, mark, "badge_set")) do cleared[i] = event.id end
  table.sort(cleared)
  expect_eq(cleared, P.names(1, 3), what .. ": yes clears all, each once")
  expect_eq(P.empty_text(phone).text, "No Badges", what .. ": and the panel says so")
  P.close(phone)
  expect_eq(phone:call("checkBadges"), false, what .. ": no badge is left")
  P.no_harm(phone)
end

for _, fast in ipairs{ false, true } do
  local what = fast and "fast" or "slow"
  local phone = P.boot{ fast = fast }
  P.open(phone)
  phone:down(P.items(phone)[2])
  while not P.seen(phone, P.tag.ok) do phone:wait(1 / 120) end
  never_crosses(phone, what .. ", asking", 0, 1)
  phone:up()
  phone:tap(P.seen(phone, P.tag.cancel))
  never_crosses(phone, what .. ", leaving", 1, 0)
  P.no_harm(phone)
end

-- An answer under a finger shows it, as long as the finger is near.
for _, tag in ipairs{ P.tag.cancel, P.tag.ok } do
  local phone = P.boot()
  P.open(phone)
  P.long_press(phone, P.items(phone)[1])
  local button = P.seen(phone, tag)
  local at = P.middle(button)
  phone:down(at)
  phone:wait(0.2)
  expect(P.seen(phone, tag).background ~= button.background, button.title .. " shows that it is pressed")
  expect_eq(P.seen(phone, tag == P.tag.ok and P.tag.cancel or P.tag.ok).background, button.background, "and it alone")
  P.slide_on(phone, at, 0, 200, 0.1)
  expect_eq(P.seen(phone, tag).background, button.background, button.title .. " lets go of a finger that strays")
  phone:up()
  phone:settle()
  P.must(P.seen(phone, P.tag.text), "which is no answer")
end

-- Outside the question and its panel a tap closes both; the next opening knows nothing of it.
local phone = P.boot()
P.open(phone)
P.long_press(phone, P.items(phone)[1])
P.close(phone)
P.open(phone)
gone(phone, "opened anew", 30)
-- Two quick taps on an answer are one.
P.long_press(phone, P.items(phone)[1])
local ok, mark = P.part(phone, P.tag.ok), P.mark(phone)
phone:tap(ok)
phone:tap({ ok.screen.x + 20, ok.screen.y + 20 })
phone:settle()
gone(phone, "pressed twice", 30)
expect_eq(#P.since(phone, mark, "badge_set"), 3, "pressed twice, each badge is cleared once")
-- Nothing to press on an empty strip.
phone:hold(P.strip(phone), 2)
phone:settle()
expect_eq(P.part(phone, P.tag.text), nil, "an empty panel asks nothing")

-- With page dots the strip's ten more points stay with it.
phone = P.boot({ paging = true }, { apps = P.numbered(7) })
P.open(phone)
P.long_press(phone, P.items(phone)[1])
expect_eq(P.panel(phone).h, 230, "paged: the panel grows as much")
expect_eq(P.strip(phone).screen.y - P.panel(phone).screen.y, 110, "paged: strip")
expect_eq(P.part(phone, P.tag.dots).screen.y - P.panel(phone).screen.y, 117, "paged: the dots stay at the strip's top")
phone:tap(P.part(phone, P.tag.cancel))
phone:settle()
expect_near(P.part(phone, P.tag.dots).y, 7, 0.01, "paged: and return")
P.no_harm(phone)
