-- Every setting with a value of each kind that is not its own, found at the start and set under way: nothing ends, the
-- phone looks and behaves as with the value that this kind counts as, and no other key changes.
--
-- Arguments: part and number of parts; all of it without.
local O = require("overlay")
local part, parts = math.tointeger(args[1] or 1), math.tointeger(args[2] or 1)

-- As text of a property list, and as a value of this language (nil: it has none of that kind).
local kinds = {
  string = { "<string>banana</string>", "banana" }, integer = { "<integer>7</integer>", 7 },
  real = { "<real>2.5</real>", 2.5 }, boolean = { "<true/>", true },
  data = { "<data>AAEC</data>" }, date = { "<date>2015-03-01T10:20:30Z</date>" },
  array = { "<array><string>a</string></array>", { "a" } },
  dictionary = { "<dict><key>a</key><string>b</string></dict>", { a = "b" } },
}

-- Of its own kind, and what each other kind counts as: `none` for "as if it were not there".
local none = {}
local number_is_on = { string = false, integer = true, real = true, data = none, date = none, array = none, dictionary = none }
local only_text = { integer = none, real = none, boolean = none, data = none, date = none, array = none, dictionary = none }
local keys = {
  -- Read with intValue, so numbers count: 7, 2 and 1.
  amount = { "string", { integer = "7", real = "2", boolean = "1", data = none, date = none, array = none,
    dictionary = none } },
  -- A code that is no text locks, and no digits are it; see below.
  password = { "string", { integer = "none of these", real = "none of these", boolean = "none of these",
    data = "none of these", date = "none of these", array = "none of these", dictionary = "none of these" } },
  ["org.example.ada"] = { "dictionary", { string = none, integer = none, real = none, boolean = none, data = none,
    date = none, array = none } },
}
for _, setting in ipairs(require("setting_keys")) do
  if setting.page ~= "application" and not keys[setting.key] then
    keys[setting.key] = setting.kind == "toggle" and { "boolean", number_is_on } or { "string", only_text }
  end
end

local about_lock = { password = true, where = true, touchid = true, ask = true, clear = true, pass = true }
local function base(key)
  local settings = { enable = true, glow = true, b = true, newb = true, rech = true, position = "bottom", tint = "green",
    colors = "blue", keep = { 1, "two", { three = 3 } } }
  if about_lock[key] then settings.pass, settings.password, settings.where = true, "1234", "every" end
  settings[key] = nil
  return settings
end

local function xml(value)
  if type(value) == "boolean" then return value and "<true/>" or "<false/>" end
  if type(value) == "string" then return "<string>" .. value .. "</string>" end
  if math.type(value) == "integer" then return "<integer>" .. value .. "</integer>" end
  local list, items = {}, {}
  for key, item in pairs(value) do
    list[#list + 1] = "<key>" .. key .. "</key>" .. xml(item)
    items[#items + 1] = xml(item)
  end
  if #value > 0 then return "<array>" .. table.concat(items) .. "</array>" end
  return "<dict>" .. table.concat(list) .. "</dict>"
end
-- The file's text, with `key` holding what `text` says; nil for nothing.
local function file(key, text)
  local body = xml(base(key)):sub(1, -#"</dict>" - 1)
  if text then body = body .. "<key>" .. key .. "</key>" .. text end
  return '<plist version="1.0">' .. body .. "</dict></plist>"
end

local apps = { { id = "org.example.ada", name = "Ada", badge = 1, running = true },
  { id = "org.example.bob", name = "Bob", badge = 2, running = true } }
local function start(key, text)
  return boot{ device = "iPhone 6", settings_text = file(key, text), apps = apps }
end

-- What a person sees: the indicator, the icons, and the panel when Activator opens it. The indicator's alpha is left
-- out, it pulses.
local function looks(phone)
  local seen, i = {}, phone:indicator()
  seen[1] = { i.visible, i.image or "", i.shadow_color or "", i.shadow_opacity or "" }
  for _, app in ipairs(apps) do
    local icon = phone:icon(app.id)
    local mark, badge = O.icon_mark(phone, app.id), phone:find{ parent = icon, class = "SBIconBadgeView" }
    seen[#seen + 1] = { mark and mark.tint or "", badge and badge.hidden or false }
  end
  phone:activator()
  phone:settle()
  phone:wait(0.3)
  seen[#seen + 1] = phone:dump("overlay")
  phone:activator()
  phone:settle()
  phone:wait(0.3)
  expect_eq(#phone:find{ window = "overlay", class = "UIWindow" }.children, 2, "closed again")
  return seen
end

local function survived(phone, what)
  expect_eq(phone:events("crash"), {}, what .. "nothing crashed")
  expect_eq(phone:events("unrecognized"), {}, what .. "no selector was unknown")
  expect_eq(phone:settings().keep, base("").keep, what .. "another key keeps its value")
end

-- What is expected, of a good value; one phone for each.
local known = {}
local function expected(key, good, under_way)
  local text = good ~= none and xml(good) or nil
  local id = key .. (text or "") .. tostring(under_way)
  if not known[id] then
    local phone = start(key, not under_way and text or nil)
    if under_way then
      looks(phone)
      if text then phone:set(key, good) end
      phone:wait(1.2)
    end
    known[id] = looks(phone)
  end
  return known[id]
end

local number, cases = 0, 0
for key, row in pairs(keys) do
  number = number + 1
  if (number - 1) % parts == part - 1 then
    for kind, value in pairs(kinds) do
      local good = row[2][kind]
      if kind ~= row[1] then
        cases = cases + 1
        local what = ("%s holding a value of kind %s: "):format(key, kind)
        local phone = start(key, value[1])
        expect_eq(looks(phone), expected(key, good), what .. "as with a good value")
        survived(phone, what)
        if value[2] ~= nil then
          phone = start(key)
          looks(phone)
          phone:set(key, value[2])
          phone:wait(1.2)
          expect_eq(looks(phone), expected(key, good, true), what .. "set under way")
          survived(phone, what .. "set under way, ")
        end
      end
    end
  end
end
print(cases .. " cases")
expect(cases > 0, "there are cases")
