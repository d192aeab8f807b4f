#include "ChildProcess.hpp"

#include "Supervisor/Protocol/Descriptors.hpp"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <spawn.h>
#include <sys/mman.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

namespace sim {

namespace {

[[noreturn]] void fail(const std::string &what) {
    throw std::system_error(errno, std::generic_category(), what);
}

std::string contents(int descriptor) {
    std::string result;
    char bytes[4096];
    ssize_t count;
    while ((count = pread(descriptor, bytes, sizeof bytes, static_cast<off_t>(result.size()))) > 0)
        result.append(bytes, static_cast<size_t>(count));
    return result;
}

// Nothing of the machine's settings reaches the process but what tools need.
std::vector<std::string> environment(const std::filesystem::path &home) {
    std::vector<std::string> result = {"TZ=UTC", "LANG=C.UTF-8", "HOME=" + home.string()};
    for (const char *name : {"PATH", "TERM", "LD_LIBRARY_PATH", "ASAN_OPTIONS", "LSAN_OPTIONS",
                             "UBSAN_OPTIONS", "ASAN_SYMBOLIZER_PATH", "LLVM_PROFILE_FILE"})
        if (const char *value = getenv(name)) result.push_back(std::string(name) + "=" + value);
    // Caches of fonts outlive the simulated home folder.
    if (const char *cache = getenv("XDG_CACHE_HOME")) {
        result.push_back(std::string("XDG_CACHE_HOME=") + cache);
    } else if (const char *ownHome = getenv("HOME")) {
        result.push_back(std::string("XDG_CACHE_HOME=") + ownHome + "/.cache");
    }
    return result;
}

std::vector<char *> pointers(std::vector<std::string> &texts) {
    std::vector<char *> result;
    for (auto &text : texts) result.push_back(text.data());
    result.push_back(nullptr);
    return result;
}

} // namespace

std::string Ending::reason() const {
    if (signal == 0) return "exit " + std::to_string(exitStatus);
    const char *name = sigabbrev_np(signal);
    return name ? std::string("SIG") + name : "signal " + std::to_string(signal);
}

ChildProcess::Descriptor::Descriptor(int descriptor)
    : value_(fcntl(descriptor, F_DUPFD_CLOEXEC, kFirstFreeDescriptor)) {
    if (value_ < 0) fail("descriptor");
    ::close(descriptor);
}

ChildProcess::Descriptor::~Descriptor() { ::close(value_); }

ChildProcess::Descriptor ChildProcess::memory(const char *name) {
    int descriptor = memfd_create(name, MFD_CLOEXEC);
    if (descriptor < 0) fail("shared memory");
    return Descriptor(descriptor);
}

ChildProcess::Connection::Connection() {
    int ends[2];
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends) != 0) fail("connection");
    supervisor = fcntl(ends[0], F_DUPFD_CLOEXEC, kFirstFreeDescriptor);
    child = fcntl(ends[1], F_DUPFD_CLOEXEC, kFirstFreeDescriptor);
    ::close(ends[0]);
    ::close(ends[1]);
}

ChildProcess::ChildProcess(const Setup &setup) : ChildProcess(setup, Connection()) {}

ChildProcess::ChildProcess(const Setup &setup, Connection connection)
    : channel_(connection.supervisor), crashReport_(memory("crash")), errorOutput_(memory("output")),
      picture_(memory("picture")), timeMemory_(SharedTime::create()), time_(timeMemory_),
      pictureMemory_(picture_) {
    Descriptor childEnd(connection.child);
    start(setup, childEnd);
}

void ChildProcess::start(const Setup &setup, int childEnd) {
    std::vector<std::string> arguments = {setup.program.string()};
    if (setup.debugger) arguments = {"gdb", "-q", "-ex", "run", "--args", setup.program.string()};
    arguments.insert(arguments.end(), setup.arguments.begin(), setup.arguments.end());
    auto variables = environment(setup.home);

    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, childEnd, kChannelDescriptor);
    posix_spawn_file_actions_adddup2(&actions, crashReport_, kCrashDescriptor);
    posix_spawn_file_actions_adddup2(&actions, picture_, kPictureDescriptor);
    posix_spawn_file_actions_adddup2(&actions, timeMemory_, kTimeDescriptor);
    if (!setup.debugger) {
        posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        // Standard output is the script's own.
        posix_spawn_file_actions_adddup2(&actions, errorOutput_, STDOUT_FILENO);
        posix_spawn_file_actions_adddup2(&actions, errorOutput_, STDERR_FILENO);
    }
    errno = posix_spawnp(&process_, arguments[0].c_str(), &actions, nullptr, pointers(arguments).data(),
                         pointers(variables).data());
    posix_spawn_file_actions_destroy(&actions);
    if (errno) fail("cannot start " + arguments[0]);
}

ChildProcess::~ChildProcess() {
    if (process_) end();
}

render::Bitmap ChildProcess::picture() const { return readPicture(picture_); }

std::vector<PictureArea> ChildProcess::refresh(render::Bitmap &picture,
                                               std::span<const PictureArea> changed) {
    return pictureMemory_.refresh(picture, changed);
}

Ending ChildProcess::end() {
    channel_.close();
    int status = 0;
    while (waitpid(process_, &status, 0) < 0 && errno == EINTR) {}
    process_ = 0;
    return {.signal = WIFSIGNALED(status) ? WTERMSIG(status) : 0,
            .exitStatus = WIFEXITED(status) ? WEXITSTATUS(status) : 0,
            .crashReport = contents(crashReport_),
            .errorOutput = contents(errorOutput_),
            .time = time_.get()};
}

} // namespace sim
