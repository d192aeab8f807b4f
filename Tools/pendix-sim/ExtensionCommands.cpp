// "new" and "build": extensions of somebody's own, by the clone's tools.
#include "Command.hpp"

#include <stdexcept>
#include <unistd.h>

namespace sim {

namespace {

// Becomes that tool; returns never.
[[noreturn]] void becomeTool(std::vector<std::string> arguments) {
    std::string tool = CLONE "/scripts/extension";
    arguments.insert(arguments.begin(), tool);
    std::vector<char *> words;
    for (auto &argument : arguments) words.push_back(argument.data());
    words.push_back(nullptr);
    execv(tool.c_str(), words.data());
    throw std::runtime_error("cannot start " + tool);
}

class NewCommand : public Command {
    void describe(Options &options) override {
        options.text({.names = "NAME", .about = "Its name, and that of its folder", .required = true}, name_);
    }

    Outcome run(const Program &) override { becomeTool({"new", name_}); }

    std::string name_;
};

class BuildCommand : public Command {
    void describe(Options &options) override {
        options.text({.names = "DIR", .about = "The folder of its sources", .required = true}, folder_);
        options.flag({.names = "--phone", .about = "And the package for a phone"}, phone_);
        options.footer("docs/extensions.md teaches more.");
    }

    Outcome run(const Program &) override {
        std::vector<std::string> arguments{"build", folder_};
        if (phone_) arguments.push_back("--phone");
        becomeTool(arguments);
    }

    std::string folder_;
    bool phone_ = false;
};

} // namespace

std::unique_ptr<Command> makeNew() { return std::make_unique<NewCommand>(); }
std::unique_ptr<Command> makeBuild() { return std::make_unique<BuildCommand>(); }

} // namespace sim
