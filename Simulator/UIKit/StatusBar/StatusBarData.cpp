#include "StatusBarData.hpp"

#include "Runtime/Process/Device.hpp"
#include "Runtime/Time/Clock.hpp"

#include <cstdio>
#include <sys/time.h>

namespace sim {

namespace {

constexpr int64_t kMinute = 60, kHour = 60 * kMinute, kDay = 24 * kHour;

Nanos sinceEpoch() {
    timeval now{};
    gettimeofday(&now, nullptr);
    return now.tv_sec * kSecond + now.tv_usec * 1000;
}

} // namespace

const StatusBarData &statusBarData() {
    static const StatusBarData data = [] {
        StatusBarData result;
        // A tablet without a telephone says what it is.
        if (device().pad) result = {.carrier = "iPad", .signalBars = 0};
        return result;
    }();
    return data;
}

std::string statusBarTime() {
    int64_t second = sinceEpoch() / kSecond % kDay;
    int hour = static_cast<int>(second / kHour), minute = static_cast<int>(second % kHour / kMinute);
    char text[16];
    if (device().language == "en") {
        snprintf(text, sizeof text, "%d:%02d %s", hour % 12 ? hour % 12 : 12, minute,
                 hour < 12 ? "AM" : "PM");
    } else {
        snprintf(text, sizeof text, "%02d:%02d", hour, minute);
    }
    return text;
}

void everyMinute(std::function<void()> task) {
    Clock &clock = Clock::shared();
    Nanos toGo = kMinute * kSecond - sinceEpoch() % (kMinute * kSecond);
    clock.schedule(clock.now() + toGo, Clock::Phase::timer, [task = std::move(task)] {
        task();
        everyMinute(task);
    });
}

} // namespace sim
