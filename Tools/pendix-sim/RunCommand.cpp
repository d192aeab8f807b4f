#include "BootArguments.hpp"
#include "Command.hpp"
#include "TracePage.hpp"

namespace sim {

namespace {

class RunCommand : public Command {
    void describe(Options &options) override {
        options.file({.names = "FILE", .about = "The script (Lua 5.4)", .required = true}, script_.file);
        options.path({.names = "--out", .about = "Folder for pictures"}, script_.pictures);
        options.number({.names = "--seed", .about = "Seed of math.random"}, script_.seed);
        options.path({.names = "--trace",
                      .about = "Write a page with a picture, the events and the views of every step",
                      .value = "FILE.html"},
                     trace_);
        arguments_.describe(options);
        options.flag({.names = "--gdb", .about = "Start the simulated processes under gdb in this terminal"},
                     arguments_.debugger);
        options.footer("What follows -- on the command line is in the script's global `args`.\n"
                       "Exits with 0 when every expectation held, 1 when one failed, 2 when the call or a "
                       "boot was wrong.");
    }

    Outcome run(const Program &program) override {
        script_.arguments = program.arguments;
        script_.trace = !trace_.empty();
        DeviceSetup setup = arguments_.setup();
        Script script(setup, script_);
        Outcome outcome = script.run();
        if (script_.trace) writeTracePage(trace_, setup.installation.trace, {script.trace()->json()});
        return outcome;
    }

    ScriptOptions script_;
    std::filesystem::path trace_;
    SetupArguments arguments_;
};

} // namespace

std::unique_ptr<Command> makeRun() { return std::make_unique<RunCommand>(); }

} // namespace sim
