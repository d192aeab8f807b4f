#include "Monkey.hpp"

#include "FindingFile.hpp"
#include "Progress.hpp"
#include "Random.hpp"
#include "Replay.hpp"
#include "Supervisor/Machine/Interrupt.hpp"
#include "Supervisor/Machine/ProcessMemory.hpp"

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

// The simulated processes are nurseries' children, whose use of memory comes here only with their end.
std::string memoryText() {
    struct rusage own {};
    getrusage(RUSAGE_SELF, &own);
    return "at most " + std::to_string(own.ru_maxrss / 1024) + " MB in the supervisor, " +
           std::to_string(mostMemoryNoted() / 1024) + " MB in a simulated process";
}

// Where in the run a session stands, for people.
std::string originOf(const MonkeyOptions &options, int64_t session, const Session &found) {
    return "pendix-sim monkey: seed " + std::to_string(options.seed) + ", " + found.boot["device"].string() +
           ", iOS " + found.boot["ios"].string() + ", session " + std::to_string(session + 1) + " of " +
           std::to_string(options.sessionEvents) + " events, event " + std::to_string(found.lines.size());
}

void report(const DeviceSetup &setup, const MonkeyOptions &options, int64_t session, const Session &found) {
    std::string origin = originOf(options, session, found);
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
    std::cerr << done.events << " of " << options.events << " events, " << done.sessions << " sessions, "
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
        SessionPlan plan{
            .seed = partSeed(static_cast<uint64_t>(options.seed), static_cast<uint64_t>(done.sessions)),
            .given = options.boot,
            .events = std::min(options.sessionEvents, options.events - done.events)};
        Session session = live(setup, plan, listener);
        if (session.interrupted) return Outcome::refused;
        if (!session.broken.empty()) {
            report(setup, options, done.sessions, session);
            return Outcome::failed;
        }
        done.add(session.tally);
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
    Replay replay(setup, finding.boot);
    auto report = [&](const std::string &after) {
        for (const auto &sentence : replay.broken()) std::cout << after << sentence << '\n';
        return !replay.broken().empty();
    };
    if (report("boot: ")) return Outcome::failed;
    for (const auto &line : finding.lines) {
        bool taken = replay.run(line);
        std::cout << line << (taken ? "" : "   (refused)") << '\n';
        if (report("  ")) return Outcome::failed;
    }
    replay.end();
    if (report("end: ")) return Outcome::failed;
    std::cout << "Nothing broke.\n";
    return Outcome::passed;
}

} // namespace sim
