// How a script finds a view that a person points at.
#pragma once

#include "LivePhone.hpp"

#include <string_view>

namespace sim {

// A view of an answer to "touched" or "seen", and those that hold it: {"window", "line"}. `place` counts them
// from the inside out. The shortest `OBJECT:find{…}` that gives that view and fits no other one at this
// moment, by its name, text, tag or class, or by what holds it; empty when nothing of that tells it from the
// others. `object` is "phone" or "pane".
std::string queryFor(LivePhone &phone, const Value &answer, size_t place, std::string_view object);

} // namespace sim
