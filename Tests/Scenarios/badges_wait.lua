-- Badges that wait are not forgotten: an empty panel, running mode and quitting leave on the list what still carries a
-- badge, take off everything else, and the indicator follows.
local P = require("panel")
local glowing = { glow = true, tint = "green" }
local function boot_with(ios, settings, apps)
  return P.boot(settings, { ios = ios, apps = apps })
end
local function both(a, b)
  local all = {}
  for _, t in ipairs{ a, b } do for k, v in pairs(t) do all[k] = v end end
  return all
end
-- Opened by the gesture, for an indicator that hides cannot be touched.
local function toggle(phone)
  phone:activator()
  phone:settle()
end
local function expect_empty(phone, what)
  toggle(phone)
  expect(P.empty_text(phone), what .. ": nothing to show")
end
local function expect_listed(phone, ids, what)
  P.open(phone)
  expect_eq(P.ids(phone), ids, what)
  P.close(phone)
end

for _, ios in ipairs{ "7.1", "8.1" } do
  local function named(text) return ios .. ", " .. text end

  -- The application in front is the only one with a badge.
  local phone = boot_with(ios, both(glowing, { hide_t = true }), P.numbered(1))
  phone:run(P.app(1))
  phone:settle()
  for _ = 1, 2 do
    expect_empty(phone, named("in front"))
    P.close(phone)
    expect(phone:indicator().visible, named("in front: its badge still shows the indicator"))
    expect(P.pulses(phone), named("in front: and pulses"))
  end
  phone:home()
  phone:settle()
  expect_listed(phone, P.names(1, 1), named("left again, it is listed"))
  P.no_harm(phone)

  -- Running mode lists nothing while three badges wait, in their order.
  phone = boot_with(ios, both(glowing, { badge = true }), P.numbered(3))
  expect_empty(phone, named("none runs"))
  P.close(phone)
  expect(not P.pulses(phone), named("none runs: nothing pulses"))
  phone:set("badge", false)
  phone:wait(1.1)
  expect_listed(phone, P.names(3, 1), named("back in badge mode"))
  P.no_harm(phone)

  -- Quitting is not reading: one by one, and the last one off an otherwise empty strip.
  phone = boot_with(ios, { badge = true }, P.numbered(2, { running = true }))
  P.open(phone)
  for left = 1, 0, -1 do
    P.swipe_down(phone, P.items(phone)[1])
    phone:settle()
    expect_eq(#P.items(phone), left, named("quit"))
  end
  P.close(phone)
  phone:set("badge", false)
  phone:wait(1.1)
  expect_listed(phone, P.names(2, 1), named("quit applications whose badges are still there"))
  P.no_harm(phone)

  -- The last item goes while the application in front keeps its badge.
  phone = boot_with(ios, both(glowing, {}), P.numbered(2))
  phone:run(P.app(1))
  phone:settle()
  P.open(phone)
  P.swipe_down(phone, P.items(phone)[1])
  phone:settle()
  expect(P.empty_text(phone), named("cleared: nothing to show"))
  P.close(phone)
  expect(P.pulses(phone), named("cleared: the other one still waits"))
  phone:home()
  phone:settle()
  expect_listed(phone, P.names(1, 1), named("cleared: and is listed"))
  P.no_harm(phone)

  -- What no longer carries a badge goes, and what its owner has hidden since counts no more.
  for text, forget in pairs{
    ["read in its folder"] = function(device) device:badge(P.app(1), 0) end,
    ["hidden since"] = function(device) device:set(P.app(1), { hide_perapp = true }) end,
  } do
    for _, settings in ipairs{ { glow = true }, { hide_t = true } } do
      local what = named(text .. (settings.hide_t and " with hide_t" or ""))
      phone = boot_with(ios, settings, P.numbered(1, { folder = "Social" }))
      forget(phone)
      expect(settings.hide_t or P.pulses(phone), what .. ": the list still has it")
      expect(phone:indicator().visible, what .. ": and shows it")
      expect_empty(phone, what)
      expect_eq(phone:indicator().visible, not settings.hide_t, what .. ": an empty list shows the indicator no more")
      P.close(phone)
      expect(not P.pulses(phone), what .. ": and does not pulse")
      P.no_harm(phone)
    end
  end
end
