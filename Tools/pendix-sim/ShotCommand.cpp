#include "BootArguments.hpp"
#include "Command.hpp"
#include "Tools/Live/Shot.hpp"

namespace sim {

namespace {

constexpr double kDay = 86400;

class ShotCommand : public Command {
    void describe(Options &options) override {
        options.path({.names = "FILE", .about = "Where to write the picture (PNG)", .required = true},
                     shot_.file);
        boot_.describe(options);
        options.repeatable({.names = "--badge",
                            .about = "First, a badge: com.apple.mobilemail=3 (repeatable)",
                            .value = "ID=N"},
                           badges_);
        options.repeatable(
            {.names = "--do", .about = "Then, a statement of a script (repeatable)", .value = "LUA"}, calls_);
        options.real({.names = "--wait", .about = "Then let so many seconds pass"}, shot_.wait, 0, kDay);
        options.footer(
            "Example: pendix-sim shot panel.png --set enable=true --badge com.apple.mobilemail=3 \\\n"
            "             --do 'phone:tap(phone:indicator().view)' --wait 1");
    }

    Outcome run(const Program &) override {
        shot_.boot = boot_.table();
        for (const auto &badge : badges_) shot_.statements.push_back(badgeStatement(badge));
        shot_.statements.insert(shot_.statements.end(), calls_.begin(), calls_.end());
        takeShot(boot_.setup(), shot_);
        return Outcome::passed;
    }

    ShotOptions shot_;
    BootArguments boot_;
    std::vector<std::string> badges_, calls_;
};

} // namespace

std::unique_ptr<Command> makeShot() { return std::make_unique<ShotCommand>(); }

} // namespace sim
