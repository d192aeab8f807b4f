#include "SettingsRemarks.hpp"

#include "Supervisor/Boot/KnownSettings.hpp"

namespace sim {

void remarkSettings(SimulatedScreen &screen, const Installation &installation, const Object &values) {
    if (!screen.options().extension) return;
    for (const auto &text : unknownSettings(values, readKnownSettings(installation.settings)))
        screen.warn(text);
}

} // namespace sim
