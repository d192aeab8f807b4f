#include "ChildProcess.hpp"

#include "ProcessMemory.hpp"
#include "Supervisor/Protocol/Descriptors.hpp"

#include <csignal>
#include <cstring>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

namespace sim {

std::string Ending::reason() const {
    if (signal == 0) return "exit " + std::to_string(exitStatus);
    const char *name = sigabbrev_np(signal);
    return name ? std::string("SIG") + name : "signal " + std::to_string(signal);
}

ChildProcess::ChildProcess(const Setup &setup) : ChildProcess(setup, Connection(SOCK_STREAM)) {}

ChildProcess::ChildProcess(const Setup &setup, Connection connection)
    : channel_(connection.supervisor.release()), crashReport_(sharedMemory("crash")),
      errorOutput_(sharedMemory("output")), picture_(sharedMemory("picture")),
      timeMemory_(SharedTime::create()), time_(timeMemory_), pictureMemory_(picture_) {
    if (!fork(setup, connection.process)) start(setup.launch, connection.process);
}

bool ChildProcess::fork(const Setup &setup, const Descriptor &childEnd) {
    nursery_ = setup.nurseries ? setup.nurseries->nurseryFor(setup.launch) : nullptr;
    if (!nursery_) return false;
    if (auto process = nursery_->bear({.channel = childEnd,
                                       .crash = crashReport_,
                                       .picture = picture_,
                                       .time = timeMemory_,
                                       .output = errorOutput_})) {
        process_ = *process;
        return true;
    }
    setup.nurseries->forget(nursery_);
    nursery_.reset();
    return false;
}

void ChildProcess::start(const Launch &launch, const Descriptor &childEnd) {
    std::vector<GivenDescriptor> descriptors = {{childEnd, kChannelDescriptor},
                                                {crashReport_, kCrashDescriptor},
                                                {picture_, kPictureDescriptor},
                                                {timeMemory_, kTimeDescriptor}};
    // Standard output is the script's own.
    if (!launch.debugger)
        for (int standard : {STDOUT_FILENO, STDERR_FILENO}) descriptors.push_back({errorOutput_, standard});
    process_ = spawn(launch, descriptors);
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
    noteMemory(process_);
    channel_.close();
    int status = nursery_ ? nursery_->waitForEnd(process_) : waitForEnd(process_);
    process_ = 0;
    return {.signal = WIFSIGNALED(status) ? WTERMSIG(status) : 0,
            .exitStatus = WIFEXITED(status) ? WEXITSTATUS(status) : 0,
            .crashReport = contents(crashReport_),
            .errorOutput = (nursery_ ? nursery_->output() : "") + contents(errorOutput_),
            .time = time_.get()};
}

} // namespace sim
