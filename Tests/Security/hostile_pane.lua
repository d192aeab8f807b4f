-- The settings pane, in Italian, on a device folder in which somebody has taken texts out of the tables; Tests/Security
-- runs it. What leads from page to page still has its label. ARGS: the folder, and installed files that are not.
local P = require("pane")
local phone, pane = P.start({ newb = true }, { root = args[1], language = "it", missing_files = { table.unpack(args, 2) } })

local function alert(name)
  local shown = pane:alert()
  print(name, shown and shown.title, shown and shown.message, shown and #shown.buttons)
  if shown then P.press(pane, shown.buttons[1]) end
end
local function leave(pages)
  for _ = 1, pages do P.back(pane) end
end

P.go(pane, { "Configurazione" })
print("footer", P.rows(pane)[1].footer)
P.go(pane, { "Accesso facilitato" })
local position = P.row(pane, "Posizione")
print("choices", table.unpack(position.choices))
pane:open("Posizione")
pane:settle()
print("list", #P.rows(pane), P.rows(pane)[1].label)
leave(2)
P.toggle(pane, "Nascondi badge")
alert("restart")
P.go(pane, { "Badge senza numero", "Colore del segno" })
P.press(pane, "(null)")
alert("color")
leave(2)
P.go(pane, { "Blocco con codice" })
pane:open(P.rows(pane)[4].label)
pane:settle()
print("moments", #P.rows(pane), P.rows(pane)[1].label)
leave(1)
P.press(pane, "Cambia codice")
print("sheet", pane:sheet().title, pane:sheet().label, pane:sheet().cancel)
for _ = 1, 2 do P.type(pane, "1234") end
print("code", phone:settings().password)
leave(2)
P.go(pane, { "Contatti" })
print("contact", #pane:all{ class = "UILabel", text = "(null)", visible = true })
leave(1)
P.no_harm(phone, pane)
