#include "Snapshot.hpp"

#include "Supervisor/Machine/SimulatedProcess.hpp"
#include "Tools/Monkey/Rules/Names.hpp"

#include <algorithm>
#include <iterator>

namespace sim {

bool Snapshot::panelOpen() const {
    return std::ranges::any_of(overlay, [](const Place &place) { return place.tag != names::dismissView; });
}

std::vector<Place> Snapshot::items() const {
    std::vector<Place> result;
    std::ranges::copy_if(overlay, std::back_inserter(result), [](const Place &place) {
        return place.tag == names::item || place.tag == names::clockItem;
    });
    return result;
}

const Place *Snapshot::key(char digit) const {
    int64_t number = digit == '0' ? 10 : digit - '0';
    auto found = std::ranges::find(overlay, number * names::keyStep, &Place::tag);
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
