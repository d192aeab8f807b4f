-- The frames of the README's animated picture: the panel grows out of the indicator, rests, and goes back into it.
-- scripts/film takes them and joins them; a line on standard output is a frame's name and how long it stands.
local phone = boot{ settings = { enable = true, glow = true, hide_t = true, tint = "cyan" } }
phone:badge("com.apple.mobilecal", 2)
phone:badge("com.apple.mobilemail", 3)
phone:badge("com.apple.MobileSMS", 12)
phone:wait(2)

local number = 0
local function frame(seconds)
  number = number + 1
  local name = string.format("frame-%03d", number)
  phone:shot(name)
  print(name, seconds)
end

-- Thirty frames a second until nothing moves but the pulse.
local function film(seconds)
  for _ = 1, math.ceil(seconds * 30) do
    frame(1 / 30)
    phone:wait(1 / 30)
  end
end

frame(1.2)
phone:tap(phone:indicator().view)
film(0.5)
phone:settle()
frame(2)
phone:tap{ 180, 600 }
film(0.5)
