// Starting programs with open files of the supervisor's.
#pragma once

#include <filesystem>
#include <span>
#include <string>
#include <sys/types.h>
#include <vector>

namespace sim {

struct Launch {
    std::filesystem::path program;
    std::vector<std::string> arguments;
    bool debugger = false; // under gdb, in the supervisor's terminal

    bool operator==(const Launch &) const = default;
};

// The started program has the supervisor's descriptor `own` as its `given`.
struct GivenDescriptor {
    int own, given;
};

// Nothing of the machine's settings reaches the program but what tools need, and no descriptor that is not
// given; its standard input is empty. Throws std::system_error.
pid_t spawn(const Launch &launch, std::span<const GivenDescriptor> descriptors);

// How a process ended, as waitpid() gives it.
int waitForEnd(pid_t process);

// A descriptor of the supervisor's own, above those that a program is started with.
class Descriptor {
public:
    // Takes over `descriptor`, which is closed when there is room for no more. Throws std::system_error.
    explicit Descriptor(int descriptor);
    ~Descriptor();
    Descriptor(Descriptor &&other) noexcept;
    Descriptor &operator=(Descriptor &&) = delete;
    operator int() const { return value_; }
    // Leaves it open, to the caller.
    int release();
    void close();

private:
    int value_;
};

// New shared memory. Throws std::system_error.
Descriptor sharedMemory(const char *name);
// All that has been written there.
std::string contents(const Descriptor &memory);

// Both ends of a new connection of that type of socket. Throws std::system_error.
struct Connection {
    explicit Connection(int type);
    Descriptor supervisor, process;

private:
    explicit Connection(std::pair<int, int> ends);
};

} // namespace sim
