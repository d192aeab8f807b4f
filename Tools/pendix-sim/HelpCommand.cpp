// `pendix-sim help`: the reference, from the tables by which the program works; and the list of devices.
#include "Command.hpp"
#include "Supervisor/Profiles/Profiles.hpp"
#include "Supervisor/Reference/HelpText.hpp"
#include "Supervisor/Text/Suggest.hpp"

#include <iostream>
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

// Throws std::runtime_error with the nearest name when there is nothing of that name.
std::string helpOn(const std::string &name, const std::vector<ReferenceSection> &reference,
                   const Program &program) {
    std::string text = program.helpText(name);
    if (auto found = helpText(reference, name)) text += (text.empty() ? "" : "\n") + *found;
    if (!text.empty()) return text;
    auto known = helpNames(reference);
    known.insert(known.end(), program.commands.begin(), program.commands.end());
    throw std::runtime_error("there is no help on '" + name + "'" + suggestion(name, known) +
                             "\n\"pendix-sim help\" lists what there is help on.");
}

class HelpCommand : public Command {
    void describe(Options &options) override {
        options.words({.names = "NAME", .about = "Of what; without it, what there is"}, words_);
        options.flag({.names = "--markdown", .about = "All of it, as docs/reference.md has it"}, page_);
    }

    Outcome run(const Program &program) override {
        auto reference = makeReference(findInstallation());
        std::string name;
        for (const auto &word : words_) name += (name.empty() ? "" : " ") + word;
        std::cout << (page_          ? referencePage(reference)
                      : name.empty() ? overview(reference, program.commands)
                                     : helpOn(name, reference, program));
        return Outcome::passed;
    }

    std::vector<std::string> words_; // of the name that is asked for
    bool page_ = false;
};

class ProfilesCommand : public Command {
    void describe(Options &) override {}

    Outcome run(const Program &) override {
        std::cout << profileTable();
        return Outcome::passed;
    }
};

} // namespace

std::unique_ptr<Command> makeHelp() { return std::make_unique<HelpCommand>(); }
std::unique_ptr<Command> makeProfiles() { return std::make_unique<ProfilesCommand>(); }

} // namespace sim
