#include "BootArguments.hpp"
#include "Command.hpp"
#include "Tools/Monkey/Monkey.hpp"

namespace sim {

namespace {

class MonkeyCommand : public Command {
    void describe(Options &options) override {
        options.number({.names = "--seed", .about = "Decides all that is done"}, monkey_.seed);
        options.count({.names = "--events", .about = "How many events, in all"}, monkey_.events);
        options.count({.names = "--session,--life", .about = "Events between one boot and the next"},
                      monkey_.sessionEvents);
        options.count(
            {.names = "--replays", .about = "How often what was found is done again to make it short"},
            monkey_.mostReplays);
        options.path(
            {.names = "--script", .about = "Where to write what was found, as a script", .value = "FILE.lua"},
            monkey_.script);
        options.path(
            {.names = "--resume", .about = "Keep the progress there, and go on from it", .value = "FILE"},
            monkey_.progress);
        options.file({.names = "--replay", .about = "Instead, do again what was found", .value = "FILE.lua"},
                     finding_);
        options.path({.names = "--trace", .about = "Write every line that is done", .value = "FILE"},
                     monkey_.trace);
        boot_.describe(options);
        options.footer(
            "What is given of the boot options stays; chance chooses the rest.\n"
            "Exits with 0 when nothing was found, 1 when something was, 2 when it was interrupted or the "
            "call was wrong.\n"
            "Example: pendix-sim monkey --seed 7 --events 100000 --resume soak.json");
    }

    Outcome run(const Program &) override {
        if (!finding_.empty()) return replayFinding(boot_.setup(), finding_.string());
        monkey_.boot = boot_.table();
        return runMonkey(boot_.setup(), monkey_);
    }

    MonkeyOptions monkey_;
    BootArguments boot_;
    std::filesystem::path finding_; // a script that the monkey wrote
};

} // namespace

std::unique_ptr<Command> makeMonkey() { return std::make_unique<MonkeyCommand>(); }

} // namespace sim
