-- A person who listens does everything on the panel by speech alone: opens it, hears all that waits, opens, clears and
-- quits applications, answers the question, and leaves; before 8.0, which has no actions by name, too.
local P, S = require("panel"), require("speech")

-- The last of these comes first.
local function apps(more)
  local list = P.numbered(5, more)
  list[5].name, list[5].badge = "Mail", 1204
  list[4].name = ""
  return list
end
local function start(ios, settings, more, options)
  local o = { ios = ios, apps = apps(more), voiceover = true }
  for key, value in pairs(options or {}) do o[key] = value end
  local phone = P.boot(settings, o)
  S.said(phone)
  return phone
end
local before_clearing = { "Mail, 1,204 new", "4, 4 new", "App 3, 3 new" }

for _, ios in ipairs{ "7.1", "8.1" } do
  local named = ios ~= "7.1"
  for _, paging in ipairs{ false, true } do
    local phone = start(ios, { paging = paging })
    expect_eq(S.words(S.find(phone, "Pendix")), "Pendix, 5 apps have badges", "the indicator says what it is and what waits")
    S.open(phone)
    expect_eq(S.heard(phone), before_clearing, "nothing but what the panel shows is heard")
    expect_eq(S.find(phone, "Mail").traits, { "button" }, "it can be pressed")
    expect_eq(S.find(phone, "Mail").actions, named and { "Clear", "Clear All" } or {}, "what else can be done")
    expect(S.find(phone, "Mail").hint:find(named and "^Opens the app%.$" or "three fingers"), "and how")
    expect_eq(S.focus(phone), before_clearing[1], "the first has the focus")
    expect_eq(S.said(phone), { before_clearing[1] }, "and is said when it opens")

    expect_eq(S.swipe(phone, "right"), false, "nothing comes before it")
    expect(S.swipe(phone, "left"), "three fingers turn the page")
    expect_eq(S.heard(phone), paging and { "App 2, 2 new", "App 1, 1 new" } or { "App 3, 3 new", "App 2, 2 new", "App 1, 1 new" }, "the rest")
    expect_eq(S.said(phone)[1], "page 2 of 2", "which is said")
    expect(S.swipe(phone, "right"), "and back")
    expect_eq(S.said(phone)[1], "page 1 of 2", "which is said, too")

    -- What has the focus is taken off by three fingers, like by a swipe.
    local gone = named and "4" or phone:focus().label
    local place = named and 2 or gone == "Mail" and 1 or 3
    if named then S.act(phone, gone, "Clear") else expect(S.swipe(phone, "up"), "three fingers take it off") end
    expect_eq(S.find(phone, gone), nil, gone .. " is cleared")
    expect_eq(S.focus(phone), S.heard(phone)[place], "the focus goes to the one in its place")

    S.said(phone)
    expect(phone:escape(), "the scrub closes it")
    expect_eq(phone:focus().label, "Pendix", "the focus goes back at once")
    S.settle(phone)
    expect_eq(S.focus(phone), "Pendix, 4 apps have badges", "and stays")
    expect_eq(S.said(phone), { "Pendix, 4 apps have badges" }, "which is heard")
    expect_eq(phone:escape(), false, "there is nothing left to leave")

    S.open(phone)
    S.press(phone, "App 2")
    expect_eq(phone:foreground(), P.app(2), "a double tap opens the application")
    P.no_harm(phone)
  end

  -- The question.
  local phone = start(ios)
  S.open(phone)
  local function ask()
    if named then return S.act(phone, "App 3", "Clear All") end
    P.long_press(phone, S.find(phone, "App 3").view) -- a double tap that rests
  end
  ask()
  expect_eq(S.heard(phone), { "Clear all badges?", "Cancel", "OK" }, "one text and two buttons")
  expect_eq(S.focus(phone), "Clear all badges?", "heard first")
  S.press(phone, "Cancel")
  expect_eq(S.heard(phone), before_clearing, "the applications are back")
  ask()
  S.press(phone, "OK")
  expect_eq(S.heard(phone), { "No Badges" }, "nothing is left")
  expect_eq(S.focus(phone), "No Badges", "which is heard")
  expect_eq(S.words(S.find(phone, "No Badges")), "No Badges", "the panel says so")
  phone:escape()
  S.settle(phone)
  expect_eq(S.words(S.find(phone, "Pendix")), "Pendix, No Badges", "and so does the indicator")

  -- Close marks are what is heard while they show.
  phone = start(ios, { close = true })
  S.open(phone)
  P.long_press(phone, S.find(phone, "4").view)
  expect_eq(S.heard(phone), { "Clear Mail, 1,204 new", "Clear 4, 4 new", "Clear App 3, 3 new" }, "the marks")
  S.press(phone, "Clear 4")
  expect_eq(S.heard(phone)[2], "Clear App 3, 3 new", "one is gone")
  phone:home()
  S.settle(phone)
  expect_eq(S.heard(phone)[2], "App 3, 3 new", "the home button puts them away")
  P.no_harm(phone)

  -- Running applications.
  phone = start(ios, { badge = true }, { running = true })
  expect_eq(S.words(S.find(phone, "Pendix")), "Pendix, 5 apps are running", "what is running")
  S.open(phone)
  expect_eq(S.heard(phone), { "App 1, 1 new, running", "App 2, 2 new, running", "App 3, 3 new, running" }, "and is new")
  if named then
    expect_eq(S.find(phone, "App 2").actions, { "Quit", "Quit All" }, "what can be done")
    S.act(phone, "App 2", "Quit")
    expect_eq(phone:events("quit")[1].id, P.app(2), "it is quit")
  end
  P.no_harm(phone)
end

-- Numbers and words by the language.
for language, words in pairs{ it = "1.204 nuovi", es = "1.204 nuevos", fr = "1,204 new" } do
  local phone = start("8.1", {}, nil, { language = language })
  S.open(phone)
  expect_eq(S.find(phone, "Mail").value, words, language)
end
