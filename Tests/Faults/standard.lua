-- What a person does on a phone with the extension in the course of a day, and whether each of it works. One run is
-- one table, from the name of the thing to what came of it; compare it with the table of a device without a fault.
local M = {}

local H = require("hands")
local home = require("standard_home")
local settings = { enable = true, glow = true, tint = "green", pass = false, password = "1234", b = true, newb = true,
  back = false }

local function try(results, list, process, tidy)
  for _, step in ipairs(list) do
    local ran, value = pcall(step[2], process)
    results[step[1]] = ran and value or false
    pcall(tidy, process)
    if step.after then pcall(step.after, process) end
    pcall(tidy, process)
  end
end

local pane_steps = require("standard_pane")

-- The steps in Settings that belong to a run: "all" of them, "looks" for what the pages show, "none".
local function in_settings(which)
  local list = {}
  for _, step in ipairs(pane_steps.steps) do
    if which == "all" or which == "looks" and step.looks then list[#list + 1] = step end
  end
  return list
end

-- The names of the steps in their order.
function M.order(which)
  local list = {}
  for _, steps in ipairs{ home, in_settings(which) } do
    for _, step in ipairs(steps) do list[#list + 1] = step[1] end
  end
  return list
end

function M.boot(options)
  local apps = {}
  for i, id in ipairs(H.ids) do
    apps[i] = { id = id, name = ({ "Ada", "Bob", "Clock" })[i], badge = i, running = true }
  end
  apps[#apps + 1] = { id = "org.example.plain", name = "Plain" }
  apps[#apps + 1] = { id = "org.example.folded", name = "Folded", folder = "Social" }
  local all = { device = "iPhone 6", ios = "8.1", passcode = true, apps = apps, settings = {} }
  for key, value in pairs(settings) do all.settings[key] = value end
  for key, value in pairs(options) do all[key] = value end
  return boot(all)
end

local function harm(process)
  local list = {}
  for _, kind in ipairs{ "crash", "unrecognized" } do
    for _, event in ipairs(process:events(kind)) do
      list[#list + 1] = kind .. " " .. (event.signal or event.class .. " " .. event.selector)
    end
  end
  return list
end

-- What came of the steps on a phone booted with `options`. A table { results =, harm = texts of what ended or nearly
-- ended a process, phone = }.
function M.run(options, which)
  local phone = M.boot(options)
  local run = { results = {}, phone = phone }
  phone:wait(0.5)
  try(run.results, home, phone, H.close)
  run.harm = harm(phone)
  local steps = in_settings(which)
  if #steps == 0 then return run end
  local opened, pane = pcall(phone.open_settings, phone)
  if opened then
    try(run.results, steps, { phone = phone, pane = pane }, pane_steps.tidy)
    for _, text in ipairs(harm(pane)) do run.harm[#run.harm + 1] = "Settings: " .. text end
  else
    -- The row of the page is not there, or leads nowhere; Settings itself goes on.
    for _, step in ipairs(steps) do run.results[step[1]] = false end
    if tostring(pane):find("died", 1, true) then run.harm[#run.harm + 1] = tostring(pane) end
  end
  return run
end

return M
