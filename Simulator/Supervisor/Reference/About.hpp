// Descriptions that the tables of the program carry, so that its reference is made of what it does.
#pragma once

#include <string>
#include <vector>

namespace sim {

// What the reference says of a row. It has no default and is never empty: a row that says nothing does not
// compile.
class About {
public:
    consteval About(const char *text) : text_(text) {
        if (*text == '\0') throw "the reference needs a description";
    }
    constexpr const char *text() const { return text_; }

private:
    const char *text_;
};

// A field, a parameter, an option: its name and what it means, with the unit.
struct Described {
    const char *name;
    About about;
};

inline std::vector<std::string> namesOf(const std::vector<Described> &rows) {
    std::vector<std::string> names;
    for (const auto &row : rows) names.emplace_back(row.name);
    return names;
}

} // namespace sim
