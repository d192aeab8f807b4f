#include "PendixSettings/Passcode/DigitEntry.hpp"
#include "Results.hpp"

namespace {

double place(std::optional<std::size_t> value) { return value ? static_cast<double>(*value) : -1; }

} // namespace

void results::digits(Report report) {
    for (std::size_t length = 0; length <= pendix::pane::kDigits + 1; ++length) {
        for (char32_t last : {U'0', U'9', U'a', U'/', U':', U'\u0665'}) {
            const pendix::pane::DigitEntry entry = pendix::pane::enterDigit(length, last);
            report("enterDigit kept", static_cast<double>(entry.kept));
            report("enterDigit dot", place(entry.dot));
            report("enterDigit dash", place(entry.dash));
            report("enterDigit complete", entry.complete);
        }
    }
}
