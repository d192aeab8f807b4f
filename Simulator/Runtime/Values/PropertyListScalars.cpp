#include "PropertyListScalars.hpp"

#include "PropertyListText.hpp"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <cstdio>

namespace sim {

namespace {

using namespace std::chrono;

constexpr sys_days kEpoch = year{2001} / January / 1;

constexpr std::string_view kDigits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

constexpr auto kDigitValues = [] {
    std::array<int8_t, 256> values{};
    values.fill(-1);
    for (size_t i = 0; i < kDigits.size(); ++i)
        values[static_cast<unsigned char>(kDigits[i])] = static_cast<int8_t>(i);
    return values;
}();

} // namespace

std::optional<double> parseDate(std::string_view text) {
    constexpr std::string_view kPattern = "dddd-dd-ddTdd:dd:ddZ";
    if (text.size() != kPattern.size()) return std::nullopt;
    std::array<int, 6> fields{};
    size_t field = 0;
    for (size_t i = 0; i < text.size(); ++i) {
        if (kPattern[i] != 'd') {
            if (text[i] != kPattern[i]) return std::nullopt;
            ++field;
        } else if (text[i] >= '0' && text[i] <= '9') {
            fields[field] = fields[field] * 10 + (text[i] - '0');
        } else {
            return std::nullopt;
        }
    }
    auto [y, m, d, h, min, s] = fields;
    year_month_day day{year{y}, month{static_cast<unsigned>(m)}, std::chrono::day{static_cast<unsigned>(d)}};
    if (!day.ok() || h > 23 || min > 59 || s > 59) return std::nullopt;
    auto moment = sys_days(day) + hours{h} + minutes{min} + seconds{s};
    return static_cast<double>((moment - kEpoch).count());
}

std::string formatDate(double secondsSince2001) {
    constexpr auto kFirst = seconds(sys_days(year{0} / January / 1) - kEpoch).count();
    constexpr auto kLast = seconds(sys_days(year{10000} / January / 1) - kEpoch).count() - 1;
    double whole =
        std::clamp(std::floor(secondsSince2001), static_cast<double>(kFirst), static_cast<double>(kLast));
    auto moment = kEpoch + seconds(static_cast<int64_t>(std::isnan(whole) ? 0 : whole));
    auto midnight = floor<days>(moment);
    year_month_day day(midnight);
    hh_mm_ss time(moment - midnight);
    char text[64];
    snprintf(text, sizeof text, "%04d-%02u-%02uT%02d:%02d:%02dZ", int(day.year()), unsigned(day.month()),
             unsigned(day.day()), static_cast<int>(time.hours().count()),
             static_cast<int>(time.minutes().count()), static_cast<int>(time.seconds().count()));
    return text;
}

std::optional<std::string> decodeBase64(std::string_view text) {
    std::string bytes;
    uint32_t bits = 0;
    int digits = 0, padding = 0;
    for (char character : text) {
        if (isSpace(character)) continue;
        int digit = kDigitValues[static_cast<unsigned char>(character)];
        if (character == '=' ? ++padding > 2 : digit < 0 || padding > 0) return std::nullopt;
        bits = bits << 6 | static_cast<uint32_t>(std::max(digit, 0));
        if (++digits % 4) continue;
        for (int shift : {16, 8, 0}) bytes.push_back(static_cast<char>(bits >> shift));
        bits = 0;
    }
    if (digits % 4) return std::nullopt;
    bytes.resize(bytes.size() - static_cast<size_t>(padding));
    return bytes;
}

std::string encodeBase64(std::string_view bytes) {
    std::string text;
    for (size_t i = 0; i < bytes.size(); i += 3) {
        size_t count = std::min<size_t>(3, bytes.size() - i);
        uint32_t bits = 0;
        for (size_t k = 0; k < 3; ++k)
            bits = bits << 8 | (k < count ? static_cast<unsigned char>(bytes[i + k]) : 0);
        for (size_t k = 0; k < 4; ++k) text.push_back(k <= count ? kDigits[bits >> (18 - 6 * k) & 63] : '=');
    }
    return text;
}

} // namespace sim
