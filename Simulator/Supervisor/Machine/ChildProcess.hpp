// A simulated process as the supervisor holds it: started, talked to, and looked after when it dies.
#pragma once

#include "Render/Bitmap.hpp"
#include "Supervisor/Protocol/Channel.hpp"
#include "Supervisor/Protocol/PictureMemory.hpp"
#include "Supervisor/Protocol/SharedTime.hpp"

#include <filesystem>
#include <memory>
#include <string>
#include <sys/types.h>
#include <vector>

namespace sim {

// How a process ended and what it left.
struct Ending {
    int signal = 0; // 0: it exited by itself
    int exitStatus = 0;
    std::string crashReport; // a line a stack frame; empty without a crash
    std::string errorOutput; // what it wrote to its standard error
    int64_t time = 0;        // its virtual time

    bool clean() const { return signal == 0 && exitStatus == 0; }
    // "SIGSEGV", "exit 1"
    std::string reason() const;
};

class ChildProcess {
public:
    struct Setup {
        std::filesystem::path program;
        std::vector<std::string> arguments;
        std::filesystem::path home; // the process's home folder
        bool debugger = false;      // under gdb, in the supervisor's terminal
    };

    // Throws std::system_error.
    explicit ChildProcess(const Setup &setup);
    ~ChildProcess();
    ChildProcess(const ChildProcess &) = delete;
    ChildProcess &operator=(const ChildProcess &) = delete;

    Channel &channel() { return channel_; }
    // The picture that the process wrote last.
    render::Bitmap picture() const;
    // The same, copied to `picture` as far as it changed: see PictureMemory.hpp.
    std::vector<PictureArea> refresh(render::Bitmap &picture, std::span<const PictureArea> changed);
    // Hangs up, which makes a healthy process exit, and waits for its end.
    Ending end();

private:
    // Both ends of a new connection.
    struct Connection {
        Connection();
        int supervisor, child;
    };
    // A descriptor of its own above those that a child is started with.
    class Descriptor {
    public:
        explicit Descriptor(int descriptor);
        ~Descriptor();
        Descriptor(const Descriptor &) = delete;
        operator int() const { return value_; }

    private:
        int value_;
    };
    ChildProcess(const Setup &setup, Connection connection);
    static Descriptor memory(const char *name);
    void start(const Setup &setup, int childEnd);

    Channel channel_;
    Descriptor crashReport_, errorOutput_, picture_, timeMemory_;
    SharedTime time_;
    PictureMemory pictureMemory_;
    pid_t process_ = 0;
};

} // namespace sim
