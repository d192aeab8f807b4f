-- A script may end in the middle of gestures: what its process holds then is no leak.
local phone = boot { settings = { enable = true }, apps = { { id = "org.example.ada", badge = 1 } } }
phone:tap(phone:indicator().view)
phone:settle()
phone:down(phone:find { window = "overlay", name = "org.example.ada" })
phone:banner("Hello")
phone:wait(0.5)
phone:down({ 100, 20 }, 2)
phone:move(100, 60, 2)
