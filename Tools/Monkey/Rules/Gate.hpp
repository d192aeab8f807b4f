// What somebody knows of the code before the lock's page in Settings who sees the pages and what is typed:
// whether it must be asked for, and whether it can have been given since the page was entered.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace sim {

struct Moment;

class GateModel {
public:
    // Takes in what was done since the last look, and what came of it. Whether the page lies open that nobody
    // has opened with the code.
    bool follow(const Moment &moment);

private:
    enum class Entry { outside, open, guarded };
    void enter(const Moment &moment);
    void type(const Moment &moment);

    Entry entry_ = Entry::outside;
    std::optional<std::string> code_;  // that counts, while the page is guarded
    size_t given_ = 0;                 // how many of its digits can have been typed
    std::optional<int64_t> openSince_; // since when the page is uncovered, at every look
};

} // namespace sim
