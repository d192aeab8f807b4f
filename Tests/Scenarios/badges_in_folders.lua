-- Opening a folder shows its badges and changes none: the order in which applications wait stays as it was. What changes
-- in a folder goes before what waits outside it, the application whose badge it was first of all.
local P = require("panel")
local apps = P.numbered(4)
for n = 2, 4 do apps[n].folder = "Social" end

for _, ios in ipairs{ "7.1", "8.1" } do
  local phone = P.boot({ glow = true }, { ios = ios, apps = apps })
  local function listed(what, ...)
    local wanted = {}
    for i, n in ipairs{ ... } do wanted[i] = P.app(n) end
    phone:activator()
    phone:settle()
    expect_eq(P.ids(phone), wanted, ios .. ": " .. what)
    phone:activator()
    phone:settle()
  end
  for round, n in ipairs{ 2, 4, 3, 1 } do phone:badge(P.app(n), 10 + round) end
  listed("newest change first", 1, 3, 4, 2)
  for round = 1, 2 do
    phone:tap(phone:find{ window = "home", class = "SBFolderIconView" })
    phone:settle()
    expect(phone:find{ parent = phone:icon(P.app(2)), class = "SBIconBadgeView" }, ios .. ": the folder's icons draw badges")
    listed("the folder is open, round " .. round, 1, 3, 4, 2)
    phone:home()
    phone:settle()
    listed("and closed, round " .. round, 1, 3, 4, 2)
  end
  phone:badge(P.app(4), 20)
  listed("a badge in the closed folder changes", 4, 3, 2, 1)
  phone:badge(P.app(1), 21)
  phone:tap(phone:find{ window = "home", class = "SBFolderIconView" })
  phone:settle()
  phone:badge(P.app(2), 22)
  phone:settle()
  listed("a badge in the open folder changes", 2, 1, 4, 3)
  phone:set(P.app(4), { hide_perapp = true })
  phone:home()
  phone:settle()
  phone:badge(P.app(3), 0)
  listed("one is hidden, one is read", 2, 1)
  P.no_harm(phone)
end
