#include "Deeds.hpp"

#include <array>
#include <cctype>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <string>

namespace sim {

namespace {

constexpr double kTap = 0.1; // seconds

struct Call {
    std::string_view receiver, name;
    std::vector<double> numbers; // among the arguments, in their order
};

bool isWord(char c) { return std::isalnum(static_cast<unsigned char>(c)) || c == '_'; }

std::string_view wordAt(std::string_view line, size_t start) {
    size_t end = start;
    while (end < line.size() && isWord(line[end])) ++end;
    return line.substr(start, end - start);
}

std::string_view wordBefore(std::string_view line, size_t end) {
    size_t start = end;
    while (start > 0 && isWord(line[start - 1])) --start;
    return line.substr(start, end - start);
}

// Past the end of the text that begins at `i`.
size_t skipText(std::string_view line, size_t i) {
    const char quote = line[i++];
    while (i < line.size() && line[i] != quote) i += line[i] == '\\' ? 2 : 1;
    return i + 1;
}

// Reads the arguments that begin at `i`, with a bracket, a brace or a text; returns where they end.
size_t readArguments(std::string_view line, size_t i, std::vector<double> &numbers) {
    int depth = 0;
    while (i < line.size()) {
        const char c = line[i];
        if (c == '"' || c == '\'') {
            i = skipText(line, i);
        } else if (c == '(' || c == '{') {
            ++depth, ++i;
        } else if (c == ')' || c == '}') {
            --depth, ++i;
        } else if (isWord(c) || c == '-' || c == '.') {
            const std::string rest(line.substr(i, 40));
            char *end = nullptr;
            const double number = std::strtod(rest.c_str(), &end);
            if (end == rest.c_str()) {
                i += std::max<size_t>(wordAt(line, i).size(), 1);
                continue;
            }
            numbers.push_back(number);
            i += static_cast<size_t>(end - rest.c_str());
        } else {
            ++i;
        }
        if (depth <= 0) break;
    }
    return i;
}

std::vector<Call> callsOf(std::string_view line) {
    std::vector<Call> calls;
    for (size_t i = 0; i < line.size();) {
        if (line[i] == '"' || line[i] == '\'') {
            i = skipText(line, i);
        } else if (line[i] != ':') {
            ++i;
        } else {
            Call call{wordBefore(line, i), wordAt(line, i + 1), {}};
            i = readArguments(line, i + 1 + call.name.size(), call.numbers);
            calls.push_back(std::move(call));
        }
    }
    return calls;
}

struct Form {
    std::string_view name;
    Deed::Kind kind;
    int place, number, seconds; // which of the arguments is what; -1: none
    double otherwise = 1;       // the number where the line says none
};

constexpr std::array kForms = {
    Form{"tap", Deed::Kind::tap, 0, -1, -1},   Form{"hold", Deed::Kind::touch, 0, -1, 2},
    Form{"drag", Deed::Kind::touch, 0, -1, 4}, Form{"fling", Deed::Kind::touch, 0, -1, 4},
    Form{"down", Deed::Kind::down, 0, 2, -1},  Form{"move", Deed::Kind::move, 0, 2, -1},
    Form{"up", Deed::Kind::up, -1, 0, -1},     Form{"finger", Deed::Kind::sensor, -1, 0, -1, 3},
    Form{"wait", Deed::Kind::wait, -1, -1, 0},
};

Deed deedOf(const Call &call) {
    if (call.receiver != "phone") return {};
    for (const Form &form : kForms) {
        if (form.name != call.name) continue;
        auto argument = [&](int index, double otherwise) {
            const auto at = static_cast<size_t>(index);
            return index >= 0 && at < call.numbers.size() ? call.numbers[at] : otherwise;
        };
        constexpr double kNowhere = std::numeric_limits<double>::quiet_NaN();
        const double seconds = form.kind == Deed::Kind::tap ? kTap : argument(form.seconds, 0);
        return {.kind = form.kind,
                .x = argument(form.place, kNowhere),
                .y = argument(form.place < 0 ? -1 : form.place + 1, kNowhere),
                .number = static_cast<int64_t>(argument(form.number, form.otherwise)),
                .duration = std::llround(seconds * 1e9)};
    }
    return {};
}

} // namespace

std::vector<Deed> deedsOf(std::string_view line) {
    std::vector<Deed> deeds;
    for (const Call &call : callsOf(line)) deeds.push_back(deedOf(call));
    return deeds;
}

} // namespace sim
