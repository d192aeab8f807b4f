#include "Nursery.hpp"

#include "Runtime/Values/Sanitizer.hpp"
#include "Supervisor/Protocol/Descriptors.hpp"

#include <algorithm>
#include <csignal>
#include <sys/socket.h>
#include <system_error>
#include <unistd.h>

namespace sim {

namespace {

// A leak that a process inherits would be reported for each, and what the sanitizer keeps of threads is not
// made for being forked.
#ifdef WATCHED_BY_SANITIZER
constexpr bool kMayFork = false;
#else
constexpr bool kMayFork = true;
#endif

} // namespace

Nursery::Nursery(const Launch &launch) : Nursery(launch, Connection(SOCK_SEQPACKET)) {}

Nursery::Nursery(const Launch &launch, Connection connection)
    : connection_(std::move(connection.supervisor)), output_(sharedMemory("output")) {
    const GivenDescriptor descriptors[] = {
        {connection.process, kChannelDescriptor}, {output_, STDOUT_FILENO}, {output_, STDERR_FILENO}};
    process_ = spawn(launch, descriptors);
}

Nursery::~Nursery() {
    connection_.close();
    sim::waitForEnd(process_);
}

std::optional<ForkReport> Nursery::nextReport() {
    auto report = receiveReport(connection_);
    if (report && report->kind == ForkReport::ended) ended_[report->process] = report->status;
    return report;
}

std::optional<pid_t> Nursery::bear(const ProcessFiles &files) {
    if (!sendOrder(connection_, files)) return {};
    while (auto report = nextReport()) {
        if (report->kind == ForkReport::born) return report->process;
        if (report->kind == ForkReport::notBorn) return {};
    }
    return {};
}

int Nursery::waitForEnd(pid_t process) {
    while (!ended_.contains(process))
        if (!nextReport()) return SIGKILL; // a nursery takes all that it has borne with it
    return ended_.extract(process).mapped();
}

std::shared_ptr<Nursery> Nurseries::nurseryFor(const Launch &launch) {
    if (!kMayFork || launch.debugger) return nullptr;
    auto found = std::ranges::find(all_, launch, [](const auto &entry) { return entry.first; });
    if (found != all_.end()) return found->second;
    try {
        return all_.emplace_back(launch, std::make_shared<Nursery>(launch)).second;
    } catch (const std::system_error &) {
        return nullptr; // whoever starts the program by itself will say it
    }
}

void Nurseries::forget(const std::shared_ptr<Nursery> &nursery) {
    std::erase_if(all_, [&](const auto &entry) { return entry.second == nursery; });
}

} // namespace sim
