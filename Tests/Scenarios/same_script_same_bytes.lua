-- Says and draws all there is to say about an eventful minute, for a second run to be compared with.
local phone = boot { settings = { enable = true, glow = true }, clock = "2015-03-01 10:59:40" }
local function report(what)
  print(what, phone:now())
  print(phone:dump())
  print(phone:counters())
  print(phone:indicator())
end
report("booted")
phone:shot("booted")
phone:badge("com.apple.mobilemail", 3)
phone:badge("com.apple.facetime", 12)
phone:wait(2.5)
report("badges")
phone:tap(phone:icon("com.apple.mobilecal"))
phone:filmstrip("launch", 0.5, 5)
phone:settle()
report("an application in front")
phone:home()
phone:fling({ 250, 300 }, -150, 3, 0.12)
phone:settle()
phone:shot("home again")
phone:respring()
phone:wait(30)
report("after a restart")
phone:shot("late")
for _, event in ipairs(phone:events()) do print(event) end
for _, line in ipairs(phone:log()) do print(line) end
print(math.random(), math.random(1000000))
