// Finding views on the screen.
#pragma once

#include "Runtime/Values/Value.hpp"

#include <UIKit/UIKit.h>

#include <optional>
#include <string>
#include <vector>

namespace sim {

// "overlay", "statusbar", "home", "lock", "alert" or "app".
std::string windowName(UIWindow *window);

// All windows, hidden ones too, in the order in which they are drawn. `name` picks those of one kind.
std::vector<UIWindow *> windowsNamed(const std::optional<std::string> &name);

// What tells a view from all others of the process, and the view of that number; nil when no window holds it.
int64_t viewNumber(UIView *view);
UIView *viewWithNumber(int64_t number);

// The text of a label, or of what else has one; nil for the rest.
NSString *textOf(UIView *view);

// Views that match every criterion given, {"window", "tag", "class", "name", "text", "inside": number,
// "parent": number, "visible"}, in depth-first drawing order. Stops at the first match when told to.
std::vector<UIView *> findViews(const Value &query, bool first);

// The view that a person would name there, at a point seen upright: the innermost one that shows something or
// takes touches, of those that lie above. nil without one.
UIView *viewSeenAt(CGPoint point);

// The names of all classes that views can have, in ascending order.
Array viewClasses();

} // namespace sim
