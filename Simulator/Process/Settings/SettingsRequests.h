// What the supervisor may ask of the Settings application besides what it asks of every process.
#pragma once

#include "Process/Shared/Requests.h"

namespace sim {

std::span<const Request> pageRequests();           // page, alert, sheet
std::span<const Request> pageInspectionRequests(); // inspect
std::span<const Request> placeRequests();          // place_row, place_button, place_back, place_cards, rotate
std::span<const Request> typingRequests();         // place_key, type, delete

} // namespace sim
