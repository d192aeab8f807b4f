// What the system says of itself in applications, in the device's language: English, Italian or Spanish, else
// English.
#pragma once

namespace sim {

struct SystemTexts {
    const char *back;     // on the way to a page without a title, or with too long a one
    const char *settings; // the application's first page
};
const SystemTexts &systemTexts();

} // namespace sim
