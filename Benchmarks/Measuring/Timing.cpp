#include "Floors.hpp"
#include "Frames.hpp"
#include "ReadMeter.hpp"
#include "Running.hpp"

#include <benchmark/benchmark.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

namespace bench {

namespace {

// What the rounds of one run add up to.
struct Sum {
    double reads = 0, readSeconds = 0, pixels = 0, paintFloor = 0;
    double units = 0;
};

double timedRound(const Case &benchmark, Device &device, Sum &sum) {
    if (benchmark.prepare) benchmark.prepare(device);
    takePainted();
    takeReadSeconds();
    size_t readsBefore = settingsReads();
    double start = processorTime();
    benchmark.work(device);
    double seconds = processorTime() - start;
    Painted painted = takePainted();
    sum.reads += static_cast<double>(settingsReads() - readsBefore);
    sum.readSeconds += takeReadSeconds();
    sum.pixels += painted.pixels();
    sum.paintFloor += barePaintSeconds(painted.width, painted.height, painted.parts);
    sum.units += benchmark.units;
    if (benchmark.restore) benchmark.restore(device);
    return seconds;
}

void report(benchmark::State &state, const Sum &sum, double bareRead) {
    state.counters["units"] = sum.units / static_cast<double>(state.iterations());
    state.counters["reads"] = sum.reads / sum.units;
    state.counters["read_seconds"] = sum.readSeconds / sum.units;
    state.counters["read_floor_seconds"] = bareRead * sum.reads / sum.units;
    state.counters["pixels"] = sum.pixels / sum.units;
    state.counters["paint_floor_seconds"] = sum.paintFloor / sum.units;
}

struct Launch {
    double seconds = 0, reads = 0;
};

// In a process of its own; this one stays bare.
Launch timedLaunch(Device &device) {
    int ends[2];
    if (pipe(ends) != 0) throw std::system_error(errno, std::generic_category(), "pipe");
    pid_t child = fork();
    if (child < 0) throw std::system_error(errno, std::generic_category(), "fork");
    Launch launch;
    if (child == 0) {
        double start = processorTime();
        device.boot();
        launch.seconds = processorTime() - start;
        launch.reads = static_cast<double>(settingsReads());
        _exit(write(ends[1], &launch, sizeof launch) == sizeof launch ? 0 : 1);
    }
    close(ends[1]);
    ssize_t got = read(ends[0], &launch, sizeof launch);
    close(ends[0]);
    int status = 0;
    waitpid(child, &status, 0);
    if (got != sizeof launch || status != 0) throw std::runtime_error("a launch failed");
    return launch;
}

void timeLaunches(benchmark::State &state, Device &device, double bareRead) {
    Sum sum;
    for (auto _ : state) {
        Launch launch = timedLaunch(device);
        state.SetIterationTime(launch.seconds);
        sum.reads += launch.reads;
        ++sum.units;
    }
    report(state, sum, bareRead);
}

void timeRounds(benchmark::State &state, const Case &benchmark, Device &device, double bareRead) {
    Sum sum;
    for (auto _ : state) state.SetIterationTime(timedRound(benchmark, device, sum));
    report(state, sum, bareRead);
}

} // namespace

void timeCase(const Case &benchmark, std::vector<std::string> arguments) {
    Device device(benchmark.options);
    double bareRead = bareReadSeconds(device.settingsFile());
    if (!benchmark.launch) {
        device.boot();
        installReadMeter();
        setMetering(Metering::time);
        if (benchmark.setUp) benchmark.setUp(device);
    }
    auto run = [&](benchmark::State &state) {
        benchmark.launch ? timeLaunches(state, device, bareRead)
                         : timeRounds(state, benchmark, device, bareRead);
    };
    std::vector<char *> pointers;
    for (auto &argument : arguments) pointers.push_back(argument.data());
    auto count = static_cast<int>(pointers.size());
    benchmark::Initialize(&count, pointers.data());
    benchmark::RegisterBenchmark(benchmark.name.c_str(), run)->UseManualTime()->Unit(benchmark::kMicrosecond);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
}

} // namespace bench
