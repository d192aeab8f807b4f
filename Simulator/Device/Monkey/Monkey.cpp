#include "Monkey.hpp"

#include "Device/Supervisor/Machine/Interrupt.hpp"
#include "FindingFile.hpp"
#include "Progress.hpp"
#include "Random.hpp"
#include "Trial.hpp"

#include <algorithm>
#include <fstream>
#include <iostream>
#include <sys/resource.h>

namespace sim {

namespace {

void wakeNobody() {}

std::ofstream openTrace(const MonkeyOptions &options) {
    if (options.trace.empty()) return {};
    std::ofstream trace(options.trace, std::ios::binary);
    if (!trace) throw std::runtime_error("cannot write " + options.trace.string());
    return trace;
}

long megabytes(int who) {
    struct rusage usage {};
    getrusage(who, &usage);
    return usage.ru_maxrss / 1024;
}

std::string memoryText() {
    return "at most " + std::to_string(megabytes(RUSAGE_SELF)) + " MB in the supervisor, " +
           std::to_string(megabytes(RUSAGE_CHILDREN)) + " MB in a simulated process";
}

// Where in the run a life stands, for people.
std::string originOf(const MonkeyOptions &options, int64_t life, const Life &found) {
    return "pendix-sim monkey: seed " + std::to_string(options.seed) + ", " + found.boot["device"].string() +
           ", iOS " + found.boot["ios"].string() + ", life " + std::to_string(life + 1) + " of " +
           std::to_string(options.lifeEvents) + " events, event " + std::to_string(found.lines.size());
}

void report(const DeviceSetup &setup, const MonkeyOptions &options, int64_t life, const Life &found) {
    std::string origin = originOf(options, life, found);
    std::cout << origin << '\n';
    for (const auto &sentence : found.broken) std::cout << "  " << sentence << '\n';
    std::cout << "making it short …" << std::endl;
    Finding finding = shortened(setup, found, options.boot, static_cast<size_t>(options.mostReplays));
    if (!finding.repeats) std::cout << "It did not happen again on a device of the same kind.\n";
    if (!(std::ofstream(options.script) << findingScript(setup, finding, origin)).flush())
        throw std::runtime_error("cannot write " + options.script.string());
    std::cout << finding.lines.size() << " lines in " << options.script.string() << '\n';
}

void printProgress(const MonkeyOptions &options, const Tally &done) {
    std::cerr << done.events << " of " << options.events << " events, " << done.lives << " lives, "
              << memoryText() << std::endl;
}

} // namespace

Outcome runMonkey(const DeviceSetup &setup, const MonkeyOptions &options) {
    watchInterrupts(wakeNobody, setup.debugger);
    std::ofstream trace = openTrace(options);
    Listener listener = [&](const std::string &line) {
        if (trace.is_open()) trace << line << '\n';
    };
    Tally done = readProgress(options);
    int64_t printed = done.events;
    const int64_t kPrintEvery = std::max<int64_t>(options.events / 20, 1);
    while (done.events < options.events) {
        LifePlan plan{.seed =
                          partSeed(static_cast<uint64_t>(options.seed), static_cast<uint64_t>(done.lives)),
                      .given = options.boot,
                      .events = std::min(options.lifeEvents, options.events - done.events)};
        Life life = live(setup, plan, listener);
        if (life.interrupted) return Outcome::refused;
        if (!life.broken.empty()) {
            report(setup, options, done.lives, life);
            return Outcome::failed;
        }
        done.add(life.tally);
        writeProgress(options, done);
        if (done.events - printed < kPrintEvery) continue;
        printProgress(options, done);
        printed = done.events;
    }
    std::cout << done.text() << memoryText() << '\n' << "Nothing was found.\n";
    return Outcome::passed;
}

Outcome replayFinding(const DeviceSetup &setup, const std::filesystem::path &file) {
    Finding finding = readFinding(file);
    Trial trial(setup, finding.boot);
    auto report = [&](const std::string &after) {
        for (const auto &sentence : trial.broken()) std::cout << after << sentence << '\n';
        return !trial.broken().empty();
    };
    if (report("boot: ")) return Outcome::failed;
    for (const auto &line : finding.lines) {
        bool taken = trial.run(line);
        std::cout << line << (taken ? "" : "   (refused)") << '\n';
        if (report("  ")) return Outcome::failed;
    }
    trial.end();
    if (report("end: ")) return Outcome::failed;
    std::cout << "Nothing broke.\n";
    return Outcome::passed;
}

} // namespace sim
