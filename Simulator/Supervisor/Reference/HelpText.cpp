#include "HelpText.hpp"

#include "Supervisor/Text/Wrap.hpp"

#include <algorithm>
#include <cctype>
#include <set>

namespace sim {

namespace {

constexpr size_t kWidth = 100;

std::string lowercase(std::string text) {
    for (char &letter : text) letter = static_cast<char>(std::tolower(static_cast<unsigned char>(letter)));
    return text;
}

// "phone:badge()" and "Badge" are "badge".
std::string keyOf(std::string name) {
    for (const char *owner : {"phone:", "pane:"})
        if (name.starts_with(owner)) name.erase(0, std::string_view(owner).size());
    return lowercase(name.substr(0, name.find('(')));
}

// A parameter's name without the brackets of what may be left out.
std::string bare(const std::string &name) {
    return name.starts_with("[") ? name.substr(1, name.size() - 2) : name;
}

std::string rowsText(const ReferenceEntry &entry) {
    size_t width = 0;
    for (const auto &row : entry.rows) width = std::max(width, row.first.size());
    std::string text;
    for (const auto &[name, about] : entry.rows)
        text += "  " + name + std::string(width - name.size() + 2, ' ') + wrapped(about, kWidth, width + 4) +
                "\n";
    return text;
}

std::string entryText(const ReferenceEntry &entry) {
    std::string text = entry.heading + "\n";
    if (!entry.text.empty()) text += "  " + wrapped(entry.text, kWidth, 2) + "\n";
    return text + rowsText(entry);
}

std::string sectionText(const ReferenceSection &section) {
    std::string text = section.title + "\n";
    if (!section.text.empty()) text += wrapped(section.text, kWidth, 0) + "\n";
    for (const auto &entry : section.entries) text += "\n" + entryText(entry);
    return text;
}

void addPart(std::string &text, const std::string &part) { text += (text.empty() ? "" : "\n") + part; }

// Fields and options of that name.
std::string rowsNamed(const std::vector<ReferenceSection> &reference, const std::string &key) {
    std::string text;
    for (const auto &section : reference)
        for (const auto &entry : section.entries)
            for (const auto &[name, about] : entry.rows)
                if (lowercase(bare(name)) == key)
                    addPart(text, name + "  (" + entry.heading + ")\n  " + wrapped(about, kWidth, 2) + "\n");
    return text;
}

} // namespace

std::string referenceOverview(const std::vector<ReferenceSection> &reference) {
    std::string text;
    for (const auto &section : reference) {
        std::string names;
        for (const auto &entry : section.entries)
            if (names.find(entry.name) == std::string::npos)
                names += (names.empty() ? "" : ", ") + entry.name;
        size_t gap = section.name.size() < 13 ? 13 - section.name.size() : 1;
        text += "  " + section.name + std::string(gap, ' ') + wrapped(names, kWidth, 15) + "\n";
    }
    return text;
}

std::optional<std::string> helpText(const std::vector<ReferenceSection> &reference, const std::string &name) {
    std::string key = keyOf(name), text;
    for (const auto &section : reference) {
        if (lowercase(section.name) == key) {
            addPart(text, sectionText(section));
            continue;
        }
        for (const auto &entry : section.entries)
            if (lowercase(entry.name) == key) addPart(text, entryText(entry));
    }
    if (text.empty()) text = rowsNamed(reference, key);
    return text.empty() ? std::nullopt : std::optional(text);
}

std::vector<std::string> helpNames(const std::vector<ReferenceSection> &reference) {
    std::set<std::string> names;
    for (const auto &section : reference) {
        names.insert(section.name);
        for (const auto &entry : section.entries) {
            names.insert(entry.name);
            for (const auto &row : entry.rows) names.insert(bare(row.first));
        }
    }
    return {names.begin(), names.end()};
}

} // namespace sim
