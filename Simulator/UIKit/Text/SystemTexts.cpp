#include "SystemTexts.hpp"

#include "Runtime/Process/Device.hpp"

namespace sim {

namespace {

struct Language {
    const char *code;
    SystemTexts texts;
};

constexpr Language kLanguages[] = {
    {"en", {"Back", "Settings"}},
    {"it", {"Indietro", "Impostazioni"}},
    {"es", {"Atrás", "Ajustes"}},
};

} // namespace

const SystemTexts &systemTexts() {
    for (const auto &language : kLanguages)
        if (device().language == language.code) return language.texts;
    return kLanguages[0].texts;
}

} // namespace sim
