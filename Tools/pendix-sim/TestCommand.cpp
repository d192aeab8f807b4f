#include "BootArguments.hpp"
#include "Command.hpp"
#include "JUnit.hpp"
#include "Supervisor/Machine/Interrupt.hpp"
#include "Supervisor/Machine/OutputFile.hpp"
#include "TestRun.hpp"
#include "TracePage.hpp"

#include <cstdlib>
#include <iostream>

namespace sim {

namespace {

// A line for each test; what a file said only when something failed in it.
void tell(const TestedFile &file) {
    bool failed = file.outcome != Outcome::passed;
    for (const auto &test : file.tests) {
        char seconds[32];
        snprintf(seconds, sizeof seconds, "  (%.2f s)", test.seconds);
        std::cout << (test.failures.empty() ? "ok      " : "failed  ") << testTitle(file.script, test.name)
                  << seconds << '\n';
    }
    std::cout << (failed ? file.said : "") << std::flush;
}

class TestCommand : public Command {
    void describe(Options &options) override {
        options.places({.names = "PATH",
                        .about = "Scripts, and folders, which stand for the scripts in them",
                        .required = true},
                       paths_);
        options.path({.names = "--out", .about = "Folder for pictures; each script gets one in it"}, out_);
        options.text({.names = "--filter", .about = "Only tests whose \"FILE: NAME\" holds this"},
                     options_.filter);
        options.count({.names = "--jobs", .about = "How many scripts to run at a time"}, jobs_);
        options.flag(
            {.names = "--update", .about = "Agree to what expect_picture() sees, and write its pictures"},
            options_.update);
        options.path({.names = "--junit", .about = "Write the results as XML, too", .value = "FILE"}, junit_);
        options.path({.names = "--trace",
                      .about = "Write a page with a picture, the events and the views of every step",
                      .value = "FILE.html"},
                     trace_);
        arguments_.describe(options);
        options.footer("What follows -- on the command line is in the scripts' global `args`.\n"
                       "Exits with 0 when every test passed, 1 when one failed, 2 when the call, a script or "
                       "a boot was wrong.\n"
                       "docs/testing.md teaches more.");
    }

    Outcome run(const Program &program) override {
        const char *integration = std::getenv("CI");
        if (options_.update && integration && *integration)
            throw std::runtime_error("--update agrees to pictures that somebody looked at; the environment "
                                     "variable CI says that nobody does");
        options_.arguments = program.arguments;
        options_.trace = !trace_.empty();
        DeviceSetup setup = arguments_.setup();
        std::vector<TestedFile> ended;
        runTestFiles(setup, testFiles(paths_, out_), options_, static_cast<size_t>(jobs_),
                     [&](TestedFile file) {
                         tell(file);
                         ended.push_back(std::move(file));
                     });
        if (!junit_.empty()) writeOutput(junit_, junitReport(ended));
        if (options_.trace) writeTracePage(trace_, setup.installation.trace, traces(ended));
        return summarize(ended);
    }

    static std::vector<std::string> traces(const std::vector<TestedFile> &files) {
        std::vector<std::string> result;
        for (const auto &file : files)
            if (!file.trace.empty()) result.push_back(file.trace);
        return result;
    }

    Outcome summarize(const std::vector<TestedFile> &files) const {
        size_t passed = 0, failed = 0;
        Outcome outcome = Outcome::passed;
        for (const auto &file : files) {
            outcome = std::max(outcome, file.outcome);
            for (const auto &test : file.tests) ++(test.failures.empty() ? passed : failed);
        }
        std::cout << passed << " passed, " << failed << " failed" << std::endl;
        if (interrupted()) {
            std::cerr << "interrupted\n";
            return std::max(outcome, Outcome::failed);
        }
        if (passed + failed == 0) throw std::runtime_error("no test's title holds '" + options_.filter + "'");
        return outcome;
    }

    std::vector<std::filesystem::path> paths_;
    std::filesystem::path out_ = "out", junit_, trace_;
    int64_t jobs_ = 1;
    ScriptOptions options_;
    SetupArguments arguments_;
};

} // namespace

std::unique_ptr<Command> makeTest() { return std::make_unique<TestCommand>(); }

} // namespace sim
