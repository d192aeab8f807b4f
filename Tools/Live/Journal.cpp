#include "Journal.hpp"

#include "LuaText.hpp"
#include "Runtime/Values/Nanoseconds.hpp"

#include <algorithm>
#include <cstdio>
#include <utility>

namespace sim {

namespace {

constexpr size_t kMostSteps = 200'000;
constexpr size_t kHead = 2; // lines before the prelude

std::string wait(int64_t duration) { return "phone:wait(" + secondsText(duration) + ")"; }

} // namespace

std::string secondsText(int64_t nanoseconds) {
    char text[48];
    snprintf(text, sizeof text, "%lld.%09lld", static_cast<long long>(nanoseconds / kSecond),
             static_cast<long long>(nanoseconds % kSecond));
    std::string result = text;
    result.erase(result.find_last_not_of('0') + 1);
    if (result.ends_with(".")) result.pop_back();
    return result;
}

std::string touchCall(std::string_view screen, const char *name, const std::string &target,
                      const std::string &more) {
    std::string call = std::string(screen) + ":" + name;
    if (more.empty() && target.starts_with("{")) return call + target;
    return call + "(" + target + (more.empty() ? "" : ", " + more) + ")";
}

Journal::Journal(Value options) : options_(std::move(options)) {
    write("-- Recorded with pendix-sim live. Replay: pendix-sim run FILE.lua");
    write("local phone = boot" + luaText(options_.isNull() ? Object{} : options_));
}

void Journal::write(std::string line) { lines_.push_back(std::move(line)); }

void Journal::add(int64_t time, std::string call) {
    touch_ = {};
    if (full_) return;
    if (steps_.size() == kMostSteps) {
        full_ = true;
        write("-- The recording ends here: it is full.");
        return;
    }
    bool waits = time > written_;
    // The samples of one movement read best with their times beside them.
    bool sample = call.starts_with("phone:move") || call.starts_with("pane:move");
    if (waits && sample) {
        write(wait(time - written_) + " " + call);
    } else {
        if (waits) write(wait(time - written_));
        write(call);
    }
    written_ = time;
    steps_.push_back({time, std::move(call)});
}

void Journal::setPrelude(const std::vector<std::string> &lines) {
    auto begin = lines_.begin() + kHead;
    lines_.erase(begin, begin + static_cast<std::ptrdiff_t>(prelude_));
    lines_.insert(lines_.begin() + kHead, lines.begin(), lines.end());
    touch_.lines += lines.size() - prelude_;
    prelude_ = lines.size();
    changed_ = std::min(changed_, kHead);
}

void Journal::addDown(int64_t time, const std::string &target, int64_t finger, std::string_view screen,
                      const std::string &tap) {
    Touch touch{finger, time, steps_.size(), lines_.size(), target, tap};
    if (time > written_) ++touch.lines;
    add(time, touchCall(screen, "down", target, finger == 1 ? "" : std::to_string(finger)));
    if (finger == 1 && !full_) touch_ = touch;
}

void Journal::addMove(int64_t time, double x, double y, int64_t finger, std::string_view screen) {
    Array arguments{coordinate(x), coordinate(y)};
    if (finger != 1) arguments.emplace_back(finger);
    add(time, luaCall("move", arguments, screen));
}

void Journal::addUp(int64_t time, int64_t finger, std::string_view screen) {
    if (touch_.finger != finger || full_) {
        add(time, luaCall("up", finger == 1 ? Array{} : Array{finger}, screen));
        return;
    }
    Touch touch = std::exchange(touch_, {});
    int64_t duration = time - touch.start;
    steps_.push_back({time, luaCall("up", {}, screen)});
    lines_.resize(touch.lines);
    changed_ = std::min(changed_, touch.lines);
    if (duration != kTapDuration) {
        write(touchCall(screen, "hold", touch.target, secondsText(duration)));
    } else {
        write(touch.tap.empty() ? touchCall(screen, "tap", touch.target) : touch.tap);
    }
    written_ = time;
}

size_t Journal::takeChange() { return std::exchange(changed_, lines_.size()); }

std::string Journal::script(int64_t end) const {
    std::string text;
    for (const auto &line : lines_) text += line + '\n';
    if (end > written_ && !full_) text += wait(end - written_) + '\n';
    return text;
}

} // namespace sim
