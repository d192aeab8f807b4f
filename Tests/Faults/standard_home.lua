-- The part of the standard day that happens on the home screen.
local H = require("hands")
local ids, tags = H.ids, H.tags
local overlay, top, panel, strip, item, sub, face, count =
  H.overlay, H.top, H.panel, H.strip, H.item, H.sub, H.face, H.count
local logged, place, items, names, open, beside, close, badges =
  H.logged, H.indicator_place, H.items, H.listed, H.open, H.beside, H.close, H.badges
local to_lock_screen, moves, code =
  H.to_lock_screen, H.moves, H.code

-- Each: its name, what it does and looks at. An error counts as false.
return {
  { "start-up ends", function(phone) return logged(phone, "<Pendix> Loaded!") end },
  { "the sensor is recorded", function(phone) return phone:settings().hasTouchID or false end },
  { "indicator", function(phone) return phone:indicator().present and phone:indicator().visible end },
  { "pulse", function(phone)
    phone:badge(ids[1], 0)
    phone:wait(0.2)
    badges(phone)
    return { moves(phone), phone:indicator().shadow_color or "none" }
  end },
  { "marks on icons", function(phone)
    local mark = H.icon_mark(phone, ids[1])
    return { mark ~= nil, mark and mark.image ~= nil and mark.w > 0 }
  end },
  { "marks fade with their application", function(phone)
    phone:run(ids[1])
    phone:settle()
    local open_alpha = H.icon_mark(phone, ids[1]).alpha
    phone:home()
    phone:settle()
    return { open_alpha, H.icon_mark(phone, ids[1]).alpha }
  end },
  { "home screen's badges hidden", function(phone)
    return phone:find{ parent = phone:icon(ids[1]), class = "SBIconBadgeView" }.hidden
  end },
  { "a tap on the indicator opens", function(phone)
    phone:tap(place(phone))
    phone:settle()
    return panel(phone) ~= nil
  end },
  { "material of the panel", function(phone)
    open(phone)
    return { top(phone, tags.screen) ~= nil, panel(phone).class }
  end },
  { "glyph over the panel", function(phone)
    open(phone)
    return top(phone, tags.logo).image ~= nil
  end },
  { "the badged are listed", function(phone)
    open(phone)
    return names(phone)
  end },
  { "one in a folder is listed", function(phone)
    close(phone)
    phone:badge("org.example.folded", 4)
    phone:wait(0.2)
    open(phone)
    return item(phone, "org.example.folded") ~= nil
  end, after = function(phone) phone:badge("org.example.folded", 0) end },
  { "icons and names", function(phone)
    open(phone)
    local list = {}
    for i, view in ipairs(items(phone)) do
      local label = phone:find{ parent = view, class = "UILabel" }
      list[i] = { label and label.text or "", sub(phone, view, tags.icon).w > 0 }
    end
    assert(#list > 0)
    return list
  end },
  { "counts", function(phone)
    open(phone)
    local list = {}
    for i, view in ipairs(items(phone)) do
      local badge = sub(phone, view, tags.badge)
      list[i] = { badge.name or "", badge.w > 8, badge.background or "" }
    end
    assert(#list > 0)
    return list
  end },
  { "other glyphs dim", function(phone)
    open(phone)
    local dim, own = 0, place(phone)[1]
    for _, view in ipairs(phone:all{ window = "statusbar", class = "UIStatusBarItemView" }) do
      if math.abs(view.alpha - 0.3) < 0.01 then dim = dim + 1 end
    end
    return dim > 0
  end },
  { "a tap beside closes", function(phone)
    open(phone)
    phone:tap(beside(phone))
    phone:settle()
    return panel(phone) == nil
  end },
  { "a swipe clears a badge", function(phone)
    open(phone)
    local n = count(phone, "badge_set", "value", 0)
    local view = item(phone, ids[2])
    phone:drag(view, 0, strip(phone).h / 2 - view.y + 30, 0.3)
    phone:settle()
    return count(phone, "badge_set", "value", 0) > n and phone:icon(ids[2]) ~= nil
  end },
  { "a long press offers to clear all", function(phone)
    open(phone)
    phone:hold(assert(items(phone)[1]), 2)
    phone:settle()
    local content = sub(phone, panel(phone), 1)
    local text = sub(phone, content, tags.text).text
    local n = count(phone, "badge_set", "value", 0)
    phone:tap(assert(sub(phone, content, tags.ok)))
    phone:settle()
    local cleared = count(phone, "badge_set", "value", 0) - n
    return { text, cleared >= 2 }
  end, after = badges },
  { "a tap opens an application", function(phone)
    open(phone)
    phone:tap(item(phone, ids[1]))
    phone:settle()
    return phone:foreground() or false
  end },
  { "the home button closes", function(phone)
    open(phone)
    phone:home()
    phone:settle()
    return panel(phone) == nil
  end },
  { "a banner closes", function(phone)
    open(phone)
    phone:banner("Hello")
    phone:settle()
    return panel(phone) == nil
  end, after = function(phone) phone:wait(6) end },
  { "turning the display off closes", function(phone)
    open(phone)
    phone:display(false)
    phone:settle()
    local gone = panel(phone) == nil
    phone:display(true)
    phone:unlock()
    phone:settle()
    return gone
  end },
  { "Activator opens and closes", function(phone)
    phone:activator()
    phone:settle()
    local opened = panel(phone) ~= nil
    phone:activator()
    phone:settle()
    return { opened, panel(phone) == nil }
  end },
  { "works over the lock screen", function(phone)
    to_lock_screen(phone)
    phone:activator()
    phone:settle()
    local shown = item(phone, ids[2]) ~= nil and #phone:all{ inside = panel(phone), visible = true } > 0
    phone:tap(item(phone, ids[2]))
    phone:settle()
    phone:unlock()
    phone:settle()
    return { shown, phone:foreground() or "nobody" }
  end, after = function(phone)
    phone:display(true)
    phone:unlock()
    phone:settle()
  end },
  { "the indicator follows settings", function(phone)
    phone:set("hide", true)
    phone:wait(1.1)
    local hidden = not phone:indicator().visible
    phone:set("hide", false)
    phone:wait(1.1)
    return { hidden, phone:indicator().visible }
  end },
  { "cards", function(phone)
    phone:set("ca", true)
    open(phone)
    local image = sub(phone, item(phone, ids[1]), tags.icon)
    return { image.h > image.w, image.image ~= nil, sub(phone, item(phone, ids[1]), tags.card) ~= nil }
  end, after = function(phone) phone:set("ca", false) end },
  { "close marks", function(phone)
    phone:set("close", true)
    open(phone)
    phone:hold(item(phone, ids[1]), 2)
    phone:settle()
    local mark = sub(phone, item(phone, ids[1]), -1)
    local image = mark.image ~= nil
    phone:tap(mark)
    phone:settle()
    return { image, item(phone, ids[1]) == nil }
  end, after = function(phone)
    if phone:indicator().present then phone:home() end
    phone:set("close", false)
    badges(phone)
  end },
  { "running applications are listed", function(phone)
    phone:set("badge", true)
    phone:wait(1.1)
    for i = 1, 2 do
      phone:run(ids[i])
      phone:home()
      phone:settle()
    end
    open(phone)
    return { phone:indicator().image or "", names(phone) }
  end },
  { "a swipe quits an application", function(phone)
    open(phone)
    local view = item(phone, ids[2])
    phone:drag(view, 0, strip(phone).h / 2 - view.y + 30, 0.3)
    phone:settle()
    return { count(phone, "quit", "id", ids[2]), item(phone, ids[2]) == nil }
  end },
  { "two clicks open", function(phone)
    phone:home_twice()
    phone:settle()
    return panel(phone) ~= nil
  end, after = function(phone)
    phone:home()
    phone:set("badge", false)
    phone:wait(1.1)
    badges(phone)
  end },
  { "the code unlocks", function(phone)
    phone:set{ pass = true, where = "every" }
    open(phone)
    local hidden = strip(phone).presented_alpha == 0
    code(phone, "9999")
    local still = strip(phone).presented_alpha == 0
    phone:settle()
    code(phone, "1234")
    return { hidden, still, strip(phone).presented_alpha }
  end },
  { "a finger unlocks", function(phone)
    phone:set("touchid", true)
    open(phone)
    phone:finger(3)
    phone:settle()
    return strip(phone).presented_alpha
  end },
  { "glyph of the finger", function(phone)
    open(phone)
    return phone:find{ inside = face(phone, "finger"), class = "PKGlyphView" } ~= nil
  end },
  { "the code opens beside the finger", function(phone)
    open(phone)
    if face(phone, "keypad").x ~= 0 then
      phone:tap(sub(phone, face(phone, "finger"), tags.to_keypad))
      phone:settle()
    end
    code(phone, "1234")
    return strip(phone).presented_alpha
  end, after = function(phone) phone:set("touchid", false) end },
  { "the code only where the device is locked", function(phone)
    phone:set("where", "lockscreen")
    to_lock_screen(phone)
    phone:activator()
    phone:settle()
    local asked = face(phone, "keypad") ~= nil
    phone:unlock()
    phone:settle()
    open(phone)
    return { asked, face(phone, "keypad") == nil }
  end, after = function(phone)
    phone:display(true)
    phone:unlock()
    phone:settle()
    phone:set("pass", false)
  end },
  { "turns with the phone", function(phone)
    open(phone)
    phone:rotate(3)
    phone:settle()
    phone:wait(0.5)
    local frame = panel(phone).screen
    return { logged(phone, "<Pendix> Orientation changed from 1 to 3"), frame.x // 1, frame.y // 1, frame.w // 1 }
  end, after = function(phone)
    phone:rotate(1)
    phone:settle()
  end },
  { "comes along with Reachability", function(phone)
    open(phone)
    local y = panel(phone).y
    phone:reachability(true)
    phone:wait(1)
    local moved = panel(phone).y ~= y
    phone:reachability(false)
    phone:wait(1)
    return moved
  end },
  { "the home screen works", function(phone)
    phone:run("org.example.plain")
    local front = phone:foreground()
    phone:home()
    phone:settle()
    phone:lock()
    phone:settle()
    phone:lock()
    phone:unlock()
    phone:settle()
    return { front, phone:foreground() == nil, phone:find{ window = "lock", visible = true } == nil }
  end },
  { "nothing is left of the panel", function(phone)
    close(phone)
    local left = 0
    for _, view in ipairs(overlay(phone) and overlay(phone).children or {}) do
      if view.tag ~= tags.screen and view.tag ~= -1 then left = left + 1 end
    end
    return { left, overlay(phone) == nil or not overlay(phone).interactive }
  end },
}
