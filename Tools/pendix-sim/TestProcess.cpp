#include "TestProcess.hpp"

#include "Runtime/Values/Json.hpp"

#include <array>
#include <csignal>
#include <cstring>
#include <iostream>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

namespace sim {

namespace {

constexpr std::array kInterrupts = {SIGINT, SIGTERM, SIGHUP};

std::string contents(FILE *file) {
    std::string text(static_cast<size_t>(lseek(fileno(file), 0, SEEK_END)), '\0');
    ssize_t size = pread(fileno(file), text.data(), text.size(), 0);
    text.resize(static_cast<size_t>(std::max<ssize_t>(size, 0)));
    return text;
}

void append(FILE *file, const std::string &text) {
    if (fwrite(text.data(), 1, text.size(), file) != text.size() || fflush(file) != 0)
        throw std::system_error(errno, std::generic_category(), "cannot keep what a test told");
}

// Holds interrupts back, so that the fork does not take one with what its parent does about it.
class WithoutInterrupts {
public:
    WithoutInterrupts() {
        sigset_t interrupts;
        sigemptyset(&interrupts);
        for (int signal : kInterrupts) sigaddset(&interrupts, signal);
        sigprocmask(SIG_BLOCK, &interrupts, &before_);
    }
    ~WithoutInterrupts() { sigprocmask(SIG_SETMASK, &before_, nullptr); }

private:
    sigset_t before_;
};

// In the process of its own. Does not throw.
int runTests(DeviceSetup setup, ScriptOptions options, FILE *told, FILE *traced) {
    try {
        if (setup.nurseries) setup.nurseries = std::make_shared<Nurseries>();
        options.tested = [told](const TestResult &result) { append(told, toJson(toValue(result)) + "\n"); };
        Script script(setup, std::move(options));
        Outcome outcome = script.run();
        if (script.trace()) append(traced, script.trace()->json());
        return static_cast<int>(outcome);
    } catch (const std::exception &error) {
        std::cerr << error.what() << '\n';
        return static_cast<int>(Outcome::refused);
    }
}

} // namespace

TestProcess::File TestProcess::temporary() {
    File file(std::tmpfile(), std::fclose);
    if (!file) throw std::system_error(errno, std::generic_category(), "cannot make a temporary file");
    return file;
}

TestProcess::TestProcess(const DeviceSetup &setup, const ScriptOptions &options)
    : script_(options.file), said_(temporary()), told_(temporary()), trace_(temporary()) {
    std::cout.flush();
    fflush(nullptr);
    WithoutInterrupts guard;
    process_ = fork();
    if (process_ < 0) throw std::system_error(errno, std::generic_category(), "cannot start a test");
    if (process_ > 0) return;
    for (int signal : kInterrupts) std::signal(signal, SIG_DFL);
    sigset_t none;
    sigemptyset(&none);
    sigprocmask(SIG_SETMASK, &none, nullptr);
    dup2(fileno(said_.get()), STDOUT_FILENO);
    dup2(fileno(said_.get()), STDERR_FILENO);
    int outcome = runTests(setup, options, told_.get(), trace_.get());
    std::cout.flush();
    fflush(nullptr);
    _exit(outcome);
}

TestedFile TestProcess::result(int status) const {
    TestedFile result{.script = script_, .said = contents(said_.get())};
    std::string told = contents(told_.get());
    for (size_t at = 0, end; (end = told.find('\n', at)) != told.npos; at = end + 1)
        result.tests.push_back(testResult(parseJson(told.substr(at, end - at))));
    if (WIFEXITED(status) && WEXITSTATUS(status) <= static_cast<int>(Outcome::refused)) {
        result.outcome = static_cast<Outcome>(WEXITSTATUS(status));
        result.trace = contents(trace_.get());
        return result;
    }
    std::string how = WIFSIGNALED(status) ? strsignal(WTERMSIG(status))
                                          : "exit status " + std::to_string(WEXITSTATUS(status));
    result.tests.push_back(
        {.name = "the run of the script", .failures = {"it did not end by itself: " + how}});
    result.said += result.tests.back().failures[0] + "\n";
    result.outcome = Outcome::failed;
    return result;
}

} // namespace sim
