#include "Replay.hpp"

#include <algorithm>

namespace sim {

Replay::Replay(const DeviceSetup &setup, const Value &boot) {
    try {
        phone_ = std::make_unique<LivePhone>(setup, boot);
    } catch (const BootError &error) {
        broken_ = {std::string("boot: ") + error.what()};
        return;
    }
    watcher_ = std::make_unique<Watcher>(*phone_);
    broken_ = watcher_->look("");
}

Replay::~Replay() = default;

bool Replay::run(const std::string &line) {
    bool taken = true;
    try {
        phone_->run(line);
    } catch (const CallError &) {
        taken = false;
    }
    broken_ = watcher_->look(line);
    return taken;
}

void Replay::end() {
    broken_.clear();
    if (!phone_) return;
    std::string troubles;
    if (SettingsProcess *settings = phone_->settings()) troubles = settings->shutDown();
    troubles += phone_->device().shutDown();
    if (!troubles.empty()) broken_ = {"end: " + troubles};
}

std::string ruleOf(const std::string &sentence) { return sentence.substr(0, sentence.find(':')); }

std::optional<size_t> breaks(const DeviceSetup &setup, const Value &boot, const Lines &lines,
                             const std::string &rule) {
    Replay replay(setup, boot);
    auto broken = [&] {
        return std::ranges::any_of(replay.broken(),
                                   [&](const auto &sentence) { return ruleOf(sentence) == rule; });
    };
    if (broken()) return 0;
    if (!replay.broken().empty()) return std::nullopt;
    for (size_t i = 0; i < lines.size(); ++i) {
        replay.run(lines[i]);
        if (broken()) return i + 1;
    }
    replay.end();
    return broken() ? std::optional(lines.size()) : std::nullopt;
}

} // namespace sim
