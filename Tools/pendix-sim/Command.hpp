// The commands of the program: one of each is a row of a table.
#pragma once

#include "Options.hpp"
#include "Supervisor/Reference/About.hpp"
#include "Supervisor/Script/Script.hpp"

#include <functional>
#include <memory>
#include <span>
#include <string>
#include <vector>

namespace sim {

// What a command knows of the program that it belongs to.
struct Program {
    std::vector<std::string> commands;                        // their names
    std::function<std::string(const std::string &)> helpText; // of a command; empty for what is none
    std::vector<std::string> arguments;                       // of the call, after "--"
};

class Command {
public:
    virtual ~Command() = default;
    virtual void describe(Options &options) = 0;
    // After the call was read. What it throws is reported and counts as refused.
    virtual Outcome run(const Program &program) = 0;
};

struct CommandRow {
    const char *name;
    About about;
    std::unique_ptr<Command> (*make)();
};

std::unique_ptr<Command> makeRun();
std::unique_ptr<Command> makeTest();
std::unique_ptr<Command> makeLive();
std::unique_ptr<Command> makeRecord();
std::unique_ptr<Command> makeShot();
std::unique_ptr<Command> makeMonkey();
std::unique_ptr<Command> makeNew();
std::unique_ptr<Command> makeBuild();
std::unique_ptr<Command> makeProfiles();
std::unique_ptr<Command> makeHelp();

// Reads the call and runs its command. Reports on the standard error stream what is wrong with it.
Outcome runCommand(std::span<const CommandRow> rows, int count, char **arguments);

} // namespace sim
