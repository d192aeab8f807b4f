#include "Snapshot.hpp"

#include "Supervisor/Machine/SimulatedProcess.hpp"

#include <algorithm>

namespace sim {

namespace {

// The clear view that lies under all else in the overlay and takes the taps beside it.
constexpr int64_t kDismissTag = -1;
constexpr int64_t kTagsADigit = 10;

} // namespace

bool Snapshot::panelOpen() const {
    return std::ranges::any_of(overlay, [](const Place &place) { return place.tag != kDismissTag; });
}

const Place *Snapshot::key(char digit) const {
    int64_t number = digit == '0' ? 10 : digit - '0';
    auto found = std::ranges::find(overlay, number * kTagsADigit, &Place::tag);
    return found == overlay.end() ? nullptr : &*found;
}

Snapshot look(LivePhone &phone) {
    Snapshot snapshot;
    Value answer;
    try {
        answer = phone.device().ask("touchable", {{"windows", Array{"overlay", "statusbar"}}});
    } catch (const RequestError &) {
        return snapshot;
    }
    for (const auto &item : answer.array()) {
        const Array &fields = item.array();
        Place place{fields[1].number(), fields[2].number(), fields[3].integer()};
        (fields[0] == Value("overlay") ? snapshot.overlay : snapshot.statusBar).push_back(place);
    }
    return snapshot;
}

} // namespace sim
