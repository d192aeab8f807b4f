#include "SpokenTexts.hpp"

#include "Runtime/Process/Device.hpp"

#include <cstdio>

namespace sim {

namespace {

struct Language {
    const char *code;
    SpokenTexts texts;
};

constexpr Language kLanguages[] = {
    {"en",
     {"Page %d of %d", "%d of 5 signal bars", "%d of 3 Wi-Fi bars", "%d%% battery power", "Delete",
      "%s new item", "%s new items"}},
    {"it",
     {"Pagina %d di %d", "Segnale: %d barre su 5", "Wi-Fi: %d barre su 3", "Batteria al %d%%", "Elimina",
      "%s nuovo elemento", "%s nuovi elementi"}},
    {"es",
     {"Página %d de %d", "%d de 5 barras de señal", "%d de 3 barras de Wi-Fi", "%d%% de batería", "Eliminar",
      "%s elemento nuevo", "%s elementos nuevos"}},
};

} // namespace

const SpokenTexts &spokenTexts() {
    for (const auto &language : kLanguages)
        if (device().language == language.code) return language.texts;
    return kLanguages[0].texts;
}

std::string pageText(int page, int pages) {
    char text[64];
    snprintf(text, sizeof text, spokenTexts().page, page, pages);
    return text;
}

} // namespace sim
