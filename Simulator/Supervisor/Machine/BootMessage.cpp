#include "BootMessage.hpp"

namespace sim {

namespace {

DeviceProfile deviceProfile(const BootOptions &options) {
    const Profile &profile = *options.profile;
    bool fromEight = options.version >= "8";
    return {.name = profile.name,
            .machine = profile.machine,
            .width = profile.width,
            .height = profile.height,
            .scale = profile.scale,
            .pad = profile.pad(),
            .touchSensor = profile.touchSensor,
            .reachability = profile.reachability && fromEight,
            .version = options.version,
            .language = options.language};
}

} // namespace

BootMessage bootMessage(const DeviceSetup &setup, const BootOptions &options,
                        const std::filesystem::path &root, Nanos now) {
    BootMessage message;
    static_cast<SharedOptions &>(message) = options;
    message.device = deviceProfile(options);
    message.now = now;
    message.wallClock = options.wallClock;
    message.root = root.string();
    message.platform = setup.installation.platform.string();
    message.countedFile = setup.package.settingsFile;
    return message;
}

} // namespace sim
