#include "TestRun.hpp"

#include "Supervisor/Machine/Interrupt.hpp"

#include <csignal>
#include <map>
#include <sys/wait.h>

namespace sim {

namespace {

void wake() {} // a signal ends the wait below by itself

struct Runner {
    const DeviceSetup &setup;
    const std::vector<TestFile> &files;
    const ScriptOptions &common;
    const std::function<void(TestedFile)> &done;
    std::map<pid_t, std::pair<size_t, TestProcess>> running = {}; // with its place in the list
    std::map<size_t, TestedFile> ended = {};                      // that wait for one before them
    size_t started = 0, given = 0;

    void startNext() {
        ScriptOptions options = common;
        options.file = files[started].script;
        options.pictures = files[started].pictures;
        TestProcess process(setup, options);
        pid_t number = process.process();
        running.emplace(number, std::pair(started++, std::move(process)));
    }

    void waitForOne() {
        int status = 0;
        pid_t process = waitpid(-1, &status, 0);
        if (interrupted())
            for (const auto &[number, test] : running) kill(number, SIGTERM);
        auto found = running.find(process);
        if (found == running.end()) return;
        ended.emplace(found->second.first, found->second.second.result(status));
        running.erase(found);
        for (; ended.contains(given); ++given) done(std::move(ended.extract(given).mapped()));
    }
};

} // namespace

void runTestFiles(const DeviceSetup &setup, const std::vector<TestFile> &files, const ScriptOptions &options,
                  size_t jobs, const std::function<void(TestedFile)> &done) {
    watchInterrupts(wake, false);
    Runner runner{setup, files, options, done};
    while (true) {
        while (runner.running.size() < jobs && runner.started < files.size() && !interrupted())
            runner.startNext();
        if (runner.running.empty()) return;
        runner.waitForOne();
    }
}

} // namespace sim
