-- A tablet that is turned while the colour cards show: they are laid out anew for the new side, once, and what is chosen
-- after that is stored.
local P = require("pane")
local path = { "Configuration", "Status Bar Icon", "Glow Color" }

for _, ios in ipairs{ "7.1", "8.1" } do
  local _, pane = P.start({ tint = "green" }, { device = "iPad Air", ios = ios })
  P.go(pane, path)
  for _, orientation in ipairs{ 3, 1, 4 } do
    local what = ios .. ", turned to " .. orientation .. ": "
    pane:rotate(orientation)
    pane:wait(2)
    local cards = pane:all{ class = "cards", visible = true }
    expect_eq(#cards, 1, what .. "the cards are there once")
    local right = cards[1] and cards[1].screen.x + cards[1].screen.w
    expect(cards[1] and right <= (orientation == 1 and 768 or 1024) + 0.5, what .. "and fit the screen")
    pane:shot(ios .. "-" .. orientation)
  end
  pane:swipe("left")
  pane:wait(2)
  P.press(pane, "Apply")
  pane:wait(1)
  expect_eq(pane:settings().tint, "cyan", ios .. ": the colour after the stored one is next, and stored")
  P.no_harm(pane)
end
