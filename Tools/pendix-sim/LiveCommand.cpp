#include "BootArguments.hpp"
#include "Command.hpp"
#include "Tools/Live/LiveSession.hpp"

#include <iostream>

namespace sim {

namespace {

class LiveCommand : public Command {
protected:
    void describe(Options &options) override {
        options.port({.names = "--port", .about = "On 127.0.0.1; 0 takes any that is free"}, live_.port);
        options.real({.names = "--speed", .about = "Of its clock at the start; 0 stops it"}, live_.speed, 0,
                     1);
        options.flag(
            {.names = "--compress",
             .about = "Pack all frames, for a slow line; without it as the line of each page asks for"},
            packed_);
        options.flag({.names = "--no-compress", .about = "Pack none"}, plain_);
        boot_.describe(options);
        options.footer("Only this machine can open the page, and only the page can talk to the device.\n"
                       "Example: pendix-sim live --device \"iPhone 5s\" --ios 7.1 --set enable=true");
    }

    Outcome run(const Program &) override {
        live_.boot = boot_.table();
        live_.tour = boot_.json.empty() && live_.boot == Value(Object{});
        if (packed_ || plain_) live_.pack = packed_;
        LiveSession session(boot_.setup(), live_);
        std::cout << "The device is at " << session.address() << "  (Ctrl-C ends it)" << std::endl;
        session.run();
        if (!live_.script.empty()) std::cout << "What was done is in " << live_.script.string() << '\n';
        return Outcome::passed;
    }

    LiveOptions live_;
    bool packed_ = false, plain_ = false;
    BootArguments boot_;
};

class RecordCommand : public LiveCommand {
    void describe(Options &options) override {
        LiveCommand::describe(options);
        options.path(
            {.names = "--script", .about = "Where to write it", .value = "FILE.lua", .required = true},
            live_.script);
    }
};

} // namespace

std::unique_ptr<Command> makeLive() { return std::make_unique<LiveCommand>(); }
std::unique_ptr<Command> makeRecord() { return std::make_unique<RecordCommand>(); }

} // namespace sim
