#include "Help.hpp"

#include "Supervisor/Reference/HelpText.hpp"
#include "Supervisor/Text/Suggest.hpp"

#include <stdexcept>

namespace sim {

namespace {

std::string overview(const std::vector<ReferenceSection> &reference,
                     const std::vector<std::string> &commands) {
    std::string text =
        "pendix-sim help NAME tells about a command, a call, an option, an event, a device, a setting, or "
        "about all\nof a kind:\n\n  commands     ";
    for (const auto &command : commands) text += (&command == &commands[0] ? "" : ", ") + command;
    return text + "\n" + referenceOverview(reference) +
           "\ndocs/simulator.md is the guide, docs/reference.md has all of this on one page.\n";
}

} // namespace

std::string help(const HelpRequest &request, const Installation &installation, const CommandHelp &commandHelp,
                 const std::vector<std::string> &commands) {
    auto reference = makeReference(installation);
    if (request.page) return referencePage(reference);
    std::string name;
    for (const auto &word : request.words) name += (name.empty() ? "" : " ") + word;
    if (name.empty()) return overview(reference, commands);
    std::string text = commandHelp(name);
    if (auto found = helpText(reference, name)) text += (text.empty() ? "" : "\n") + *found;
    if (!text.empty()) return text;
    auto known = helpNames(reference);
    known.insert(known.end(), commands.begin(), commands.end());
    throw std::runtime_error("there is no help on '" + name + "'" + suggestion(name, known) +
                             "\n\"pendix-sim help\" lists what there is help on.");
}

} // namespace sim
