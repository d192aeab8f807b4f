// The texts that stand for dates and data in the XML form.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace sim {

// "2015-03-01T10:20:30Z" and seconds since 2001-01-01 00:00:00 UTC. Nothing on any other text.
std::optional<double> parseDate(std::string_view text);
// Rounded down to the second; the year is clamped to 0 … 9999.
std::string formatDate(double secondsSince2001);

// White space is skipped. Nothing when there is anything else, or the padding is wrong.
std::optional<std::string> decodeBase64(std::string_view text);
// In one line.
std::string encodeBase64(std::string_view bytes);

} // namespace sim
