// Makes a long list that shows a fault short.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace sim {

using Lines = std::vector<std::string>;

// Does the lines on something fresh; returns how many of them it took to show the fault, nothing when all of
// them did not.
using Attempt = std::function<std::optional<size_t>(const Lines &)>;

// Leaves out halves, quarters and so on down to single lines as long as what remains shows the fault, with
// `mostReplays` replays at most. `lines` must show it.
Lines shrunk(Lines lines, const Attempt &replay, size_t mostReplays);

} // namespace sim
