#include "Interposed.hpp"

#include "Device.hpp"
#include "Events.hpp"

#include <Darwin/sysctl.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <sstream>
#include <string>
#include <sys/syscall.h>
#include <unistd.h>
#include <vector>

#define INTERPOSED extern "C" __attribute__((visibility("default")))

namespace sim {

namespace {

std::function<void()> &respringCallback() {
    static std::function<void()> callback;
    return callback;
}

std::function<bool(int, int)> &signalCallback() {
    static std::function<bool(int, int)> callback;
    return callback;
}

// As when the shell finds no such command.
constexpr int kCommandNotFound = 127 << 8;

// "killall", by path or not and with a signal or not, of the home screen.
bool restartsHomeScreen(const std::string &command) {
    std::istringstream stream(command);
    std::vector<std::string> words;
    for (std::string word; stream >> word;) words.push_back(word);
    if (words.size() < 2 || words.back() != "SpringBoard") return false;
    bool options =
        std::all_of(words.begin() + 1, words.end() - 1, [](const auto &word) { return word[0] == '-'; });
    return options && (words[0] == "killall" || words[0] == "/usr/bin/killall");
}

// A text setting as the kernel hands it out: too small a buffer is filled as far as it goes.
int giveText(const std::string &text, void *value, size_t *size) {
    size_t needed = text.size() + 1;
    if (!size) return 0;
    size_t given = value ? std::min(*size, needed) : needed;
    if (value) memcpy(value, text.c_str(), given);
    *size = given;
    if (given == needed) return 0;
    errno = ENOMEM;
    return -1;
}

} // namespace

void onRespringRequest(std::function<void()> callback) { respringCallback() = std::move(callback); }
void onSignal(std::function<bool(int, int)> callback) { signalCallback() = std::move(callback); }

} // namespace sim

INTERPOSED int system(const char *command) {
    if (!command) return 1;
    if (!sim::restartsHomeScreen(command)) {
        sim::recordWarning(std::string("a shell command that the device does not have: ") + command);
        return sim::kCommandNotFound;
    }
    sim::recordEvent("respring");
    if (sim::respringCallback()) sim::respringCallback()();
    return 0;
}

INTERPOSED int kill(pid_t process, int number) noexcept {
    if (process == getpid()) return static_cast<int>(syscall(SYS_kill, process, number));
    if (number) sim::recordEvent("signal", sim::Object{{"pid", process}, {"number", number}});
    if (sim::signalCallback() && sim::signalCallback()(process, number)) return 0;
    errno = ESRCH;
    return -1;
}

INTERPOSED int sysctlbyname(const char *name, void *value, size_t *size, void *newValue, size_t) {
    if (strcmp(name, "hw.machine") != 0) {
        errno = ENOENT;
        return -1;
    }
    if (newValue) {
        errno = EPERM;
        return -1;
    }
    return sim::giveText(sim::device().machine, value, size);
}
