#include "Shrink.hpp"

#include <algorithm>

namespace sim {

Lines shrunk(Lines lines, const Attempt &attempt, size_t mostReplays) {
    size_t replays = 0;
    bool shorter = false;
    // From the end, for what comes early is more often what later lines stand on.
    auto pass = [&](size_t size) {
        for (size_t end = lines.size(); end > 0 && replays < mostReplays;) {
            size_t start = end > size ? end - size : 0;
            Lines rest(lines.begin(), lines.begin() + static_cast<ptrdiff_t>(start));
            rest.insert(rest.end(), lines.begin() + static_cast<ptrdiff_t>(end), lines.end());
            ++replays;
            if (auto needed = attempt(rest)) {
                rest.resize(*needed);
                lines = std::move(rest);
                shorter = true;
            }
            end = std::min(start, lines.size());
        }
    };
    for (size_t size = (lines.size() + 1) / 2; size > 1; size = (size + 1) / 2) pass(size);
    do {
        shorter = false;
        pass(1);
    } while (shorter && replays < mostReplays);
    return lines;
}

} // namespace sim
