#include "Harness.h"

#include "Runtime/Files/FoundationFiles.hpp"
#include "Runtime/Objc/Availability.hpp"
#include "Runtime/Objc/Blocks.hpp"
#include "Runtime/Process/Singletons.hpp"
#include "Runtime/Time/Timers.hpp"
#include "Runtime/Values/Json.hpp"
#include "UIKit/Application/ApplicationState.h"

#include <algorithm>

namespace harness {

namespace {

void prepare(const sim::Device &device, const sim::SharedOptions &options) {
    sim::device() = device;
    sim::applyAvailability(device.version);
    sim::prepareHomeScreen(options);
}

void launch() {
    sim::launchHomeScreen();
    sim::Clock::shared().settleNow();
    sim::takeEvents();
}

} // namespace

void preparePlatform() {
    sim::installBlocks();
    sim::makeFoundationSingletons();
    sim::installTimers();
    sim::installPropertyLists();
    sim::installRunLoop();
}

sim::Device profile(const std::string &name, sim::Version version) {
    struct Model {
        const char *name;
        double width, height, scale;
    };
    constexpr Model kModels[] = {{"iPhone 4S", 320, 480, 2}, {"iPhone 5", 320, 568, 2},
                                 {"iPhone 6", 375, 667, 2},  {"iPhone 6 Plus", 414, 736, 3},
                                 {"iPad 2", 768, 1024, 1},   {"iPad Air", 768, 1024, 2}};
    for (const auto &model : kModels) {
        if (name != model.name) continue;
        return {.name = name,
                .machine = {},
                .width = model.width,
                .height = model.height,
                .scale = model.scale,
                .pad = name.rfind("iPad", 0) == 0,
                .version = version};
    }
    ADD_FAILURE() << "no such profile: " << name;
    return {};
}

sim::SharedOptions applications(int plain) {
    sim::SharedOptions options;
    auto add = [&](std::string identifier, std::string name, std::string folder, bool dock) {
        options.applications.push_back(
            {.identifier = identifier, .name = name, .folder = folder, .dock = dock});
    };
    add("com.apple.mobilemail", "Mail", "", true);
    add("com.apple.mobilephone", "Phone", "", true);
    for (int i = 1; i <= plain; ++i) {
        std::string number = std::to_string(i);
        add("org.example." + number, "App " + number, "", false);
    }
    add("org.example.chat", "Chat", "Social", false);
    add("org.example.games", "Games", "Social", false);
    return options;
}

void boot(const sim::Device &device, const sim::SharedOptions &options) {
    prepare(device, options);
    launch();
}

void boot(const sim::Device &device, const sim::SharedOptions &options, void (*load)()) {
    prepare(device, options);
    load();
    launch();
}

void wait(double seconds) {
    sim::Clock &clock = sim::Clock::shared();
    clock.settleNow();
    clock.advance(clock.now() + sim::fromSeconds(seconds));
    clock.settleNow();
}

SBIconView *iconView(const std::string &identifier) { return sim::homeScreenIconView(identifier); }

SBIconView *folderView() {
    SBIconView *inside = iconView("org.example.chat");
    for (UIWindow *window in [[UIApplication sharedApplication] windows]) {
        std::vector<UIView *> open{window};
        while (!open.empty()) {
            UIView *view = open.back();
            open.pop_back();
            bool holder = [view isKindOfClass:[SBIconView class]] && view != inside &&
                          [[static_cast<SBIconView *>(view) icon] isFolderIcon];
            if (holder) return static_cast<SBIconView *>(view);
            for (UIView *subview in [view subviews]) open.push_back(subview);
        }
    }
    return nil;
}

SBApplication *application(const std::string &identifier) {
    return static_cast<SBApplicationIcon *>([iconView(identifier) icon]).application;
}

SBIconBadgeView *badgeOf(SBIconView *view) {
    for (UIView *subview in [view subviews])
        if ([subview isKindOfClass:[SBIconBadgeView class]]) return static_cast<SBIconBadgeView *>(subview);
    return nil;
}

std::vector<std::string> events(const std::vector<std::string> &kinds) {
    std::vector<std::string> result;
    for (const auto &event : sim::takeEvents()) {
        std::string line = event["kind"].string();
        if (std::find(kinds.begin(), kinds.end(), line) == kinds.end()) continue;
        for (const auto &[key, value] : event.object())
            if (key != "kind" && key != "t")
                line += " " + key + "=" + (value.isString() ? value.string() : toJson(value));
        result.push_back(line);
    }
    return result;
}

} // namespace harness
