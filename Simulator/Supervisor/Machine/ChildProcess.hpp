// A simulated process as the supervisor holds it: started or forked, talked to, and looked after when it
// dies.
#pragma once

#include "Nursery.hpp"
#include "Render/Bitmap.hpp"
#include "Supervisor/Protocol/Channel.hpp"
#include "Supervisor/Protocol/PictureMemory.hpp"
#include "Supervisor/Protocol/SharedTime.hpp"

#include <memory>
#include <string>
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
        Launch launch;
        std::shared_ptr<Nurseries> nurseries; // without them it is started by itself
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
    ChildProcess(const Setup &setup, Connection connection);
    bool fork(const Setup &setup, const Descriptor &childEnd);
    void start(const Launch &launch, const Descriptor &childEnd);

    Channel channel_;
    Descriptor crashReport_, errorOutput_, picture_, timeMemory_;
    SharedTime time_;
    PictureMemory pictureMemory_;
    pid_t process_ = 0;
    std::shared_ptr<Nursery> nursery_; // that has borne it
};

} // namespace sim
