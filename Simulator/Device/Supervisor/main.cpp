// pendix-sim: runs scripts against simulated devices.
#include "Device/Profiles/Profiles.hpp"
#include "Script/Script.hpp"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <iostream>

namespace {

struct CommandLine {
    sim::ScriptOptions script;
    bool debugger = false;
};

sim::Outcome runScript(CommandLine &commandLine) {
    sim::Installation installation = sim::findInstallation();
    sim::DeviceSetup setup{.installation = installation,
                           .package = sim::readPackage(installation.manifest),
                           .debugger = commandLine.debugger};
    return sim::Script(std::move(setup), std::move(commandLine.script)).run();
}

sim::Outcome run(CLI::App &program, int count, char **arguments) {
    CommandLine commandLine;
    // What follows "--" is the script's own.
    char **end = arguments + count;
    char **own =
        std::find_if(arguments, end, [](const char *argument) { return std::string_view(argument) == "--"; });
    if (own != end) commandLine.script.arguments.assign(own + 1, end);

    program.require_subcommand(1);
    auto *run = program.add_subcommand("run", "Run a script");
    run->add_option("FILE", commandLine.script.file, "The script (Lua 5.4)")
        ->required()
        ->check(CLI::ExistingFile);
    run->add_option("--out", commandLine.script.pictures, "Folder for pictures")->capture_default_str();
    run->add_option("--seed", commandLine.script.seed, "Seed of math.random")->capture_default_str();
    run->add_flag("--gdb", commandLine.debugger, "Start the simulated processes under gdb in this terminal");
    run->footer(
        "What follows -- on the command line is in the script's global `args`.\n"
        "Exits with 0 when every expectation held, 1 when one failed, 2 when the call or a boot was wrong.");
    program.add_subcommand("profiles", "List the devices and their system versions");
    program.parse(static_cast<int>(own - arguments), arguments);

    if (run->parsed()) return runScript(commandLine);
    std::cout << sim::profileTable();
    return sim::Outcome::passed;
}

} // namespace

int main(int count, char **arguments) {
    CLI::App program("A simulated home screen, driven by scripts.");
    try {
        return static_cast<int>(run(program, count, arguments));
    } catch (const CLI::ParseError &error) {
        return program.exit(error) == 0 ? 0 : static_cast<int>(sim::Outcome::refused);
    } catch (const std::exception &error) {
        std::cerr << "pendix-sim: " << error.what() << '\n';
        return static_cast<int>(sim::Outcome::refused);
    }
}
