-- The language's library gives the same on every run: no system access, keys in order, seeded random numbers.
-- options: --seed 7 -- first "second word"
-- stdout: {[1] = 1, [2] = 2.5, [3] = "x", k = {}}	nil	1.0	function
for _, name in ipairs { "os", "io", "package", "debug", "loadfile", "warn" } do
  expect_eq(_G[name], nil, name .. " is absent")
end
expect_eq(args, { "first", "second word" }, "the words after -- are in args")
print({ 1, 2.5, "x", k = {} }, nil, 1.0, print)

local function keys(t)
  local r = {}
  for k in pairs(t) do r[#r + 1] = k end
  return r
end
local mixed = { b = 1, a = 2, [10] = 3, [-1] = 4, [2.5] = 5, [true] = 6, c = 7, ["10"] = 8 }
expect_eq(keys(mixed), { -1, 2.5, 10, "10", "a", "b", "c", true }, "numbers, then strings, then the rest")
local walked, k, v = {}, nil, nil
repeat
  k, v = next(mixed, k)
  walked[#walked + 1] = k
until k == nil
expect_eq(walked, keys(mixed), "next goes the same way")
expect_eq(next({}), nil, "an empty table has no first key")
for key in pairs(mixed) do mixed[key] = nil end
expect_eq(next(mixed), nil, "keys may be removed while they are visited")
local proxy = setmetatable({}, { __pairs = function() return ipairs { "own" } end })
for _, value in pairs(proxy) do expect_eq(value, "own", "__pairs is honoured") end
expect(not pcall(pairs, { [{}] = 1 }), "a table as a key has no place in an order")
expect(not pcall(pairs, nil), "nil has no pairs")

expect_eq(tostring({ print }), "{\"<function>\"}", "no addresses")
expect_eq(tostring(setmetatable({}, { __tostring = function() return "mine" end })), "mine", "__tostring is honoured")
expect_eq(string.format("%s|%5.2f|%d|%%p|%q", { 1 }, 1 / 3, 7, "a"), "{1}| 0.33|7|%p|\"a\"", "format")
expect(not pcall(string.format, "%p", {}), "%p would show an address")

local drawn = { math.random(1000), math.random(1000), math.random() }
math.randomseed()
expect_eq({ math.random(1000), math.random(1000), math.random() }, drawn, "no seed means the script's")
math.randomseed(7)
expect_eq(math.random(1000), drawn[1], "which is the one of the command line")

local helper = dofile("lib_helper.lua")
expect_eq(helper.add(1, 2), 3, "dofile finds files beside the script")
expect_eq(select("#", dofile("lib_helper.lua")), 2, "and gives all their results")
local held, problem = pcall(dofile, "lib_none.lua")
expect(not held and problem:find("lib_none.lua", 1, true), "a missing file is named")
expect_eq(load("return ...", "chunk")(5), 5, "load takes text")
expect_eq(load(string.dump(function() end)), nil, "and nothing compiled")
expect_eq(load("return x", "chunk", "b", { x = 3 })(), 3, "with an environment")
local co = coroutine.wrap(function() coroutine.yield(select(2, pcall(boot, { devise = 1 }))) end)
expect(co():find("'device'"), "functions of the simulator work in coroutines")
collectgarbage()
expect(not pcall(collectgarbage, "count"), "how much memory is used is nobody's business")
