#include "ReadMeter.hpp"
#include "Running.hpp"

#include <cstdio>
#include <valgrind/callgrind.h>

namespace bench {

namespace {

// The first rounds fill caches: of methods, of glyphs, of pictures.
constexpr int kWarmUps = 3;

void collect(const std::string &what, const std::function<void()> &work) {
    CALLGRIND_ZERO_STATS;
    CALLGRIND_TOGGLE_COLLECT;
    work();
    CALLGRIND_TOGGLE_COLLECT;
    CALLGRIND_DUMP_STATS_AT(what.c_str());
}

void round(const Case &benchmark, Device &device, const char *what) {
    if (benchmark.prepare) benchmark.prepare(device);
    auto work = [&] { benchmark.work(device); };
    what ? collect(std::string(what) + " " + benchmark.name, work) : work();
    if (benchmark.restore) benchmark.restore(device);
}

void countRounds(const Case &benchmark, Device &device) {
    device.boot();
    installReadMeter();
    if (benchmark.setUp) benchmark.setUp(device);
    for (int i = 0; i < kWarmUps; ++i) round(benchmark, device, nullptr);
    CALLGRIND_START_INSTRUMENTATION;
    round(benchmark, device, "all");
    setMetering(Metering::exclude);
    round(benchmark, device, "rest");
}

} // namespace

void countCase(const Case &benchmark) {
    Device device(benchmark.options);
    if (benchmark.launch) {
        CALLGRIND_START_INSTRUMENTATION;
        collect("all " + benchmark.name, [&] { device.boot(); });
    } else {
        countRounds(benchmark, device);
    }
    printf("units %d\n", benchmark.units);
}

} // namespace bench
