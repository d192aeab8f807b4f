-- Prints docs/accessibility.md: what each screen says, by asking it.
local P, L, S = require("panel"), require("lock"), require("speech")

local function cell(text) return text and text ~= "" and text or "–" end
local function heading(text) print("\n## " .. text) end
local function say(text) print("\n" .. text) end

-- A table of what is heard; keys and rows that the system reads are not the extension's.
local function screen(where, title, leave)
  print("\n### " .. title .. "\n\n| Heard | Kind | Actions |\n|---|---|---|")
  for _, element in ipairs(S.elements(where)) do
    local kind = table.concat(element.traits, ", "):gsub("_", " ")
    if not (leave and leave(element)) then
      print(("| %s | %s | %s |"):format(S.words(element), cell(kind), cell(table.concat(element.actions, ", "))))
    end
  end
end
local function told(phone, after)
  for _, text in ipairs(S.said(phone)) do print(("| %s | %s |"):format(after, text)) end
end

local apps = { { id = "org.example.notes", name = "Notes", badge = 1, running = true }, { id = "org.example.phone", name = "", badge = 2, running = true },
  { id = "org.example.chat", name = "Chat", badge = 3, running = true }, { id = "org.example.mail", name = "Mail", badge = 1204, running = true } }
local function panel(settings, options)
  local o = { device = "iPhone 6", apps = apps, voiceover = true }
  for key, value in pairs(options or {}) do o[key] = value end
  local phone = P.boot(settings, o)
  S.said(phone)
  return phone
end

print([[# Accessibility

What each screen says, and how the extension heeds the other aids. The tables are what VoiceOver reads in the simulated home screen; `Tests/Goldens/accessibility.lua`
prints this page, and a test holds it against the run. No phone has read it aloud (`limitations.md`).]])

heading("The indicator")
local phone = panel{}
local function indicator(where) return S.words(S.find(where, "Pendix")) end
print("\n| When | Heard |\n|---|---|")
print("| Four badges | " .. indicator(phone) .. " |")
print("| Running mode | " .. indicator(panel{ badge = true }) .. " |")
print("| Nothing waits | " .. indicator(panel({}, { apps = {} })) .. " |")
print("| The panel would be locked | " .. indicator(panel{ pass = true, password = "1234" }) .. " |")

heading("The panel")
say([[It is modal: nothing else on the screen is read. The first element has the focus when it opens, and the indicator gets it back when it closes. The scrub of two fingers
closes it. An application is heard with its name, or the last part of its identifier, and its whole count. Behind a face of the lock nothing of the list is heard.]])
S.open(phone)
screen(phone, "Applications with badges")
say("Hint: " .. S.elements(phone)[1].hint)
S.act(phone, "Mail", "Clear All")
screen(phone, "The question, on Clear All or a long press")
phone = panel{ badge = true }
S.open(phone)
screen(phone, "Running applications")
phone = panel{ close = true }
S.open(phone)
P.long_press(phone, S.find(phone, "Mail").view)
screen(phone, "Close marks, while they show")
phone = panel({}, { apps = {} })
S.open(phone)
screen(phone, "Nothing waits")
phone = panel({}, { device = "iPhone 5s", ios = "7.1" })
S.open(phone)
say("Before 8.0 there are no actions by name. Hint there: " .. S.elements(phone)[1].hint)

heading("The lock")
local function locked(settings)
  local seen = L.boot_locked(settings, { device = "iPhone 6", voiceover = true })
  S.open(seen)
  S.said(seen)
  return seen
end
phone = locked{ ask = true, touchid = true }
screen(phone, "Ask First")
S.press(phone, "Unlock")
screen(phone, "Touch ID")
S.press(phone, "Passcode")
screen(phone, "The keypad, with Show Digits or without")
S.press(phone, "7")
say("With one digit entered: " .. S.heard(phone)[1])

heading("What is said without being asked")
print("\n| After | Heard |\n|---|---|")
phone = panel{ paging = true }
S.open(phone)
told(phone, "the panel has opened")
S.swipe(phone, "left")
told(phone, "three fingers to the left")
S.swipe(phone, "right")
S.said(phone)
S.act(phone, "Mail", "Clear")
told(phone, "an application was cleared")
phone:escape()
S.settle(phone)
told(phone, "the scrub")
phone = locked{}
S.enter(phone, "1111")
told(phone, "a wrong code")
S.enter(phone, "1234")
told(phone, "the right code")

heading("The settings pane")
say("Rows, alerts and keys are the system's. The cards of a colour are one adjustable element; a sheet for the code is one element that tells the step and how many digits are typed.")
local function of_system(element) return not (element.view and (element.view.class == "cards" or element.view.class == "PasscodeView")) end
local pane = settings_app{ device = "iPhone 6", settings = { tint = "blue", password = "1234" } }
pane:settle()
local function go(label)
  pane:activate(S.reach(pane, label))
  S.settle(pane)
end
for _, label in ipairs{ "Configuration", "Status Bar Icon", "Glow Color" } do go(label) end
screen(pane, "A colour", of_system)
pane = settings_app{ device = "iPhone 6", settings = { password = "1234" } }
pane:settle()
for _, label in ipairs{ "Configuration", "Passcode Lock", "Change Passcode" } do go(label) end
screen(pane, "Changing the code", of_system)

heading("Languages")
say("The home-screen side speaks English, Italian and Spanish, the pane English and Italian; numbers are grouped as the language does.")
print("\n| Language | Indicator | Application | Actions |\n|---|---|---|---|")
for _, language in ipairs{ "en", "it", "es" } do
  phone = panel({}, { language = language })
  local first = indicator(phone)
  S.open(phone)
  local mail = S.find(phone, "Mail")
  print(("| %s | %s | %s | %s |"):format(language, first, S.words(mail), table.concat(mail.actions, ", ")))
end

heading("The other aids")
print([[

| Aid | What it does |
|---|---|
| Reduce Motion (8.0 on) | panel, faces and question fade where they stand; the emptied dots flash once instead of shaking; the indicator's pulse, which does not move, stays |
| Reduce Transparency (8.0 on) | panel and bubble are solid; where Blur Background is on, the screen behind is covered instead |
| Darken Colors (8.0 on) | black under the dark panel's names and digits, whose ink is white or black already; rings of keys and dots twice as strong |
| Bold Text (8.0 on) | names, texts and digits in the heavier font of the family |
| Larger Text | names follow the size for captions, 11 to 18 points; in the accessibility sizes they have 20 points and two lines, and the panel is higher. The pane's own texts follow up to what their line holds |]])
