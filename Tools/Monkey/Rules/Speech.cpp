// While a face of the lock shows, nothing of the list is spoken.
#include "Listed.hpp"
#include "Names.hpp"
#include "PanelSight.hpp"
#include "Rules.hpp"

namespace sim {

void checkSpeech(const Moment &moment, Memory &, Findings &findings) {
    if (moment.now.spoken.empty() || !sightOf(moment.now).face()) return;
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
