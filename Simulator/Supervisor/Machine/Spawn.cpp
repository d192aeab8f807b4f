#include "Spawn.hpp"

#include "Supervisor/Protocol/Descriptors.hpp"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <spawn.h>
#include <sys/mman.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace sim {

namespace {

[[noreturn]] void fail(const std::string &what) {
    throw std::system_error(errno, std::generic_category(), what);
}

// The home folder is the device's, as on the device. Planted faults are chosen by the last two.
std::vector<std::string> environment() {
    std::vector<std::string> result = {"TZ=UTC", "LANG=C.UTF-8", "HOME=/var/mobile"};
    for (const char *name :
         {"PATH", "TERM", "LD_LIBRARY_PATH", "ASAN_OPTIONS", "LSAN_OPTIONS", "UBSAN_OPTIONS",
          "ASAN_SYMBOLIZER_PATH", "LLVM_PROFILE_FILE", "MUTANT", "MUTANTS_PASSED"})
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

std::pair<int, int> socketPair(int type) {
    int ends[2];
    if (socketpair(AF_UNIX, type | SOCK_CLOEXEC, 0, ends) != 0) fail("connection");
    return {ends[0], ends[1]};
}

} // namespace

pid_t spawn(const Launch &launch, std::span<const GivenDescriptor> descriptors) {
    std::vector<std::string> arguments = {launch.program.string()};
    if (launch.debugger) arguments = {"gdb", "-q", "-ex", "run", "--args", launch.program.string()};
    arguments.insert(arguments.end(), launch.arguments.begin(), launch.arguments.end());
    auto variables = environment();

    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    if (!launch.debugger) posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    for (const auto &descriptor : descriptors)
        posix_spawn_file_actions_adddup2(&actions, descriptor.own, descriptor.given);
    pid_t process = 0;
    errno = posix_spawnp(&process, arguments[0].c_str(), &actions, nullptr, pointers(arguments).data(),
                         pointers(variables).data());
    posix_spawn_file_actions_destroy(&actions);
    if (errno) fail("cannot start " + arguments[0]);
    return process;
}

int waitForEnd(pid_t process) {
    int status = 0;
    while (waitpid(process, &status, 0) < 0 && errno == EINTR) {}
    return status;
}

Descriptor::Descriptor(int descriptor) : value_(fcntl(descriptor, F_DUPFD_CLOEXEC, kFirstFreeDescriptor)) {
    int error = errno;
    ::close(descriptor);
    errno = error;
    if (value_ < 0) fail("descriptor");
}

Descriptor::Descriptor(Descriptor &&other) noexcept : value_(other.release()) {}

Descriptor::~Descriptor() { close(); }

int Descriptor::release() { return std::exchange(value_, -1); }

void Descriptor::close() {
    if (value_ >= 0) ::close(value_);
    value_ = -1;
}

Descriptor sharedMemory(const char *name) {
    int descriptor = memfd_create(name, MFD_CLOEXEC);
    if (descriptor < 0) fail("shared memory");
    return Descriptor(descriptor);
}

std::string contents(const Descriptor &memory) {
    std::string result;
    char bytes[4096];
    ssize_t count;
    while ((count = pread(memory, bytes, sizeof bytes, static_cast<off_t>(result.size()))) > 0)
        result.append(bytes, static_cast<size_t>(count));
    return result;
}

Connection::Connection(int type) : Connection(socketPair(type)) {}
Connection::Connection(std::pair<int, int> ends) : supervisor(ends.first), process(ends.second) {}

} // namespace sim
