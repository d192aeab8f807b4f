#include "LockTexts.hpp"

#include "Runtime/Process/Device.hpp"

#include <chrono>
#include <cstdio>

namespace sim {

namespace {

struct Language {
    const char *code;
    LockTexts texts;
    bool halfDays;    // the clock starts anew at noon
    const char *date; // weekday, month and day as arguments 1 to 3
    const char *weekdays[7], *months[12];
};

const Language kLanguages[] = {
    {"en",
     {"slide to unlock", "Enter Passcode", "Emergency", "Cancel", "Delete", "now"},
     true,
     "%1$s, %2$s %3$u",
     {"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"},
     {"January", "February", "March", "April", "May", "June", "July", "August", "September", "October",
      "November", "December"}},
    {"it",
     {"scorri per sbloccare", "Inserisci codice", "Emergenza", "Annulla", "Elimina", "adesso"},
     false,
     "%1$s %3$u %2$s",
     {"domenica", "lunedì", "martedì", "mercoledì", "giovedì", "venerdì", "sabato"},
     {"gennaio", "febbraio", "marzo", "aprile", "maggio", "giugno", "luglio", "agosto", "settembre",
      "ottobre", "novembre", "dicembre"}},
    {"es",
     {"desliza para desbloquear", "Introduce el código", "Emergencia", "Cancelar", "Eliminar", "ahora"},
     false,
     "%1$s, %3$u de %2$s",
     {"domingo", "lunes", "martes", "miércoles", "jueves", "viernes", "sábado"},
     {"enero", "febrero", "marzo", "abril", "mayo", "junio", "julio", "agosto", "septiembre", "octubre",
      "noviembre", "diciembre"}},
};

const Language &language() {
    for (const auto &candidate : kLanguages)
        if (device().language == candidate.code) return candidate;
    return kLanguages[0];
}

} // namespace

const LockTexts &lockTexts() { return language().texts; }

std::string lockTime(int64_t moment) {
    int64_t minutes = moment % 86400 / 60, hour = minutes / 60;
    if (language().halfDays) hour = hour % 12 ? hour % 12 : 12;
    char text[16];
    snprintf(text, sizeof text, language().halfDays ? "%d:%02d" : "%02d:%02d", static_cast<int>(hour),
             static_cast<int>(minutes % 60));
    return text;
}

std::string lockDate(int64_t moment) {
    using namespace std::chrono;
    sys_days day = floor<days>(sys_seconds(seconds(moment)));
    year_month_day date(day);
    char text[96];
    snprintf(text, sizeof text, language().date, language().weekdays[weekday(day).c_encoding()],
             language().months[static_cast<unsigned>(date.month()) - 1], static_cast<unsigned>(date.day()));
    return text;
}

} // namespace sim
