#include "HelpText.hpp"

namespace sim {

namespace {

// In a cell of a table a bar would end the cell.
std::string cell(const std::string &text) {
    std::string result;
    for (char letter : text) result += letter == '|' ? std::string("\\|") : std::string(1, letter);
    return result;
}

std::string entryPart(const ReferenceEntry &entry) {
    bool call = entry.heading.ends_with(")");
    std::string text = "### " + (call ? "`" + entry.heading + "`" : entry.heading) + "\n";
    if (!entry.text.empty()) text += "\n" + entry.text + "\n";
    if (entry.rows.empty()) return text;
    text += "\n| Name | |\n|---|---|\n";
    for (const auto &[name, about] : entry.rows) text += "| `" + cell(name) + "` | " + cell(about) + " |\n";
    return text;
}

} // namespace

std::string referencePage(const std::vector<ReferenceSection> &reference) {
    std::string text =
        "# Reference of the simulator\n\n"
        "All that a script may say and be told, written by `pendix-sim help --markdown` from the tables "
        "by which the\nprogram works. `pendix-sim help NAME` shows one thing. Times are seconds, lengths "
        "points. What stands in brackets\nmay be left out. `docs/simulator.md` is the guide.\n\n";
    for (const auto &section : reference) text += "- " + section.title + " (`help " + section.name + "`)\n";
    for (const auto &section : reference) {
        text += "\n## " + section.title + "\n";
        if (!section.text.empty()) text += "\n" + section.text + "\n";
        for (const auto &entry : section.entries) text += "\n" + entryPart(entry);
    }
    return text;
}

} // namespace sim
