#include "Journal.hpp"

#include "LuaText.hpp"

#include "Runtime/Values/Nanoseconds.hpp"

#include <algorithm>
#include <cstdio>
#include <utility>

namespace sim {

namespace {

constexpr size_t kMostSteps = 200'000;
constexpr int64_t kTapDuration = 100'000'000;

// Whole points read best without a fraction.
Value coordinate(double value) {
    auto whole = static_cast<int64_t>(value);
    return static_cast<double>(whole) == value ? Value(whole) : Value(value);
}

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

void Journal::addDown(int64_t time, double x, double y, int64_t finger, std::string_view screen) {
    Touch touch{finger, time, steps_.size(), lines_.size(), x, y};
    if (time > written_) ++touch.lines;
    Array arguments;
    arguments.emplace_back(Array{coordinate(x), coordinate(y)});
    if (finger != 1) arguments.emplace_back(finger);
    add(time, luaCall("down", arguments, screen));
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
    Value point = Array{coordinate(touch.x), coordinate(touch.y)};
    int64_t duration = time - touch.start;
    steps_.push_back({time, luaCall("up", {}, screen)});
    lines_.resize(touch.lines);
    changed_ = std::min(changed_, touch.lines);
    write(duration == kTapDuration
              ? luaCall("tap", {point}, screen)
              : std::string(screen) + ":hold(" + luaText(point) + ", " + secondsText(duration) + ")");
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
