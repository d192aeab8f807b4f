// While a face of the lock shows, nothing of the list is spoken.
#include "Listed.hpp"
#include "Names.hpp"
#include "PanelSight.hpp"
#include "Rules.hpp"

namespace sim {

// The rule "locked", which comes before, keeps what is known of the lock up to date.
void checkSpeech(const Moment &moment, Memory &memory, Findings &findings) {
    const PanelSight sight = sightOf(moment.now);
    // A face that makes way for the list moves.
    if (memory.lock.guarded() != Sure::yes && !(sight.resting && sight.face())) return;
    for (const auto &window : moment.now.overlays)
        for (size_t view : window.childrenOf(0)) {
            if (window.views[view].tag != names::panel) continue;
            const size_t strip = stripIn(window, view);
            if (strip == SeenWindow::npos) continue;
            for (const std::string &name : namesIn(window, strip))
                for (const std::string &words : moment.now.spoken)
                    if (words.find(name) != std::string::npos)
                        findings.push_back("\"" + words + "\" is heard in front of the list");
        }
}

} // namespace sim
