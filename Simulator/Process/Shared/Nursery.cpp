#include "Nursery.hpp"

#include "Supervisor/Protocol/Descriptors.hpp"
#include "Supervisor/Protocol/ForkMessages.hpp"

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace sim {

namespace {

constexpr const char *kNurseryName = "nursery";
// What ends the supervisor, which reaches a whole group of processes from a terminal. The nursery has to be
// there until the supervisor has heard how its processes ended.
constexpr int kInterrupts[] = {SIGINT, SIGTERM, SIGHUP};

bool isNursery() {
    int kind = 0;
    socklen_t size = sizeof kind;
    return getsockopt(kChannelDescriptor, SOL_SOCKET, SO_TYPE, &kind, &size) == 0 && kind == SOCK_SEQPACKET;
}

bool waitForThreads(size_t most) {
    using namespace std::chrono_literals;
    for (int i = 0; i < 5'000; ++i) {
        if (threadCount() <= most) return true;
        std::this_thread::sleep_for(1ms);
    }
    return false;
}

void noteEnd(int) {}

void closeAll(const ProcessFiles &files) {
    for (int file : {files.channel, files.crash, files.picture, files.time, files.output}) ::close(file);
}

// What the nursery has changed of the process that it was, for its children to have it back.
class Nursery {
public:
    Nursery() {
        prctl(PR_GET_NAME, name_);
        prctl(PR_SET_NAME, kNurseryName);
        sigset_t ends;
        sigemptyset(&ends);
        sigaddset(&ends, SIGCHLD);
        sigprocmask(SIG_BLOCK, &ends, &mask_);
        struct sigaction action {};
        action.sa_handler = noteEnd;
        sigaction(SIGCHLD, &action, &end_);
        action.sa_handler = SIG_IGN;
        for (size_t i = 0; i < std::size(kInterrupts); ++i)
            sigaction(kInterrupts[i], &action, &interrupts_[i]);
    }

    // Returns in a child only.
    void serve() {
        for (;;) {
            pollfd connection{.fd = kChannelDescriptor, .events = POLLIN, .revents = 0};
            int ready = ppoll(&connection, 1, nullptr, &mask_);
            reportEnds();
            if (ready <= 0) continue;
            auto files = receiveOrder(kChannelDescriptor);
            if (!files) _exit(EXIT_SUCCESS);
            pid_t child = fork();
            if (child == 0) return becomeProcess(*files);
            closeAll(*files);
            sendReport(kChannelDescriptor, {child > 0 ? ForkReport::born : ForkReport::notBorn, child, 0});
        }
    }

private:
    void reportEnds() {
        int status = 0;
        for (pid_t child; (child = waitpid(-1, &status, WNOHANG)) > 0;)
            sendReport(kChannelDescriptor, {ForkReport::ended, child, status});
    }

    void becomeProcess(const ProcessFiles &files) {
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        if (getppid() != self_) _exit(EXIT_FAILURE); // it died before that was said
        prctl(PR_SET_NAME, name_);
        const struct {
            int from, to;
        } moves[] = {{files.channel, kChannelDescriptor}, {files.crash, kCrashDescriptor},
                     {files.picture, kPictureDescriptor}, {files.time, kTimeDescriptor},
                     {files.output, STDOUT_FILENO},       {files.output, STDERR_FILENO}};
        for (auto move : moves) dup2(move.from, move.to);
        closeAll(files);
        for (size_t i = 0; i < std::size(kInterrupts); ++i)
            sigaction(kInterrupts[i], &interrupts_[i], nullptr);
        sigaction(SIGCHLD, &end_, nullptr);
        sigprocmask(SIG_SETMASK, &mask_, nullptr);
    }

    pid_t self_ = getpid();
    char name_[16] = "";
    sigset_t mask_{};
    struct sigaction end_ {
    }, interrupts_[std::size(kInterrupts)]{};
};

} // namespace

size_t threadCount() {
    std::error_code error;
    std::filesystem::directory_iterator all("/proc/self/task", error);
    return static_cast<size_t>(std::distance(begin(all), end(all)));
}

void bearProcesses(size_t threads) {
    if (!isNursery()) return;
    if (!waitForThreads(threads)) {
        fputs("threads are left that cannot be forked\n", stderr);
        _exit(EXIT_FAILURE);
    }
    fflush(nullptr);
    Nursery().serve();
}

} // namespace sim
