// Simulated processes that are forked from one that was prepared for them, instead of started: the
// supervisor's side of Process/Shared/Nursery.hpp.
#pragma once

#include "Spawn.hpp"
#include "Supervisor/Protocol/ForkMessages.hpp"

#include <map>
#include <memory>
#include <optional>

namespace sim {

class Nursery {
public:
    // Starts the program, which then prepares itself. Throws std::system_error.
    explicit Nursery(const Launch &launch);
    // What it has borne must have ended.
    ~Nursery();
    Nursery(const Nursery &) = delete;
    Nursery &operator=(const Nursery &) = delete;

    // A process with copies of these files. Nothing when there can be none; the nursery is then of no
    // further use.
    std::optional<pid_t> bear(const ProcessFiles &files);
    // How a process that was borne has ended, as waitpid() gives it.
    int waitForEnd(pid_t process);
    // What the program wrote while it was prepared.
    std::string output() const { return contents(output_); }

private:
    Nursery(const Launch &launch, Connection connection);
    // Also notes ends; nothing when the nursery is gone.
    std::optional<ForkReport> nextReport();

    Descriptor connection_, output_;
    pid_t process_;
    std::map<pid_t, int> ended_; // not asked for yet
};

// The nurseries of one run, one for each program and its arguments, made when the first process of that kind
// is.
class Nurseries {
public:
    // Null when there can be none.
    std::shared_ptr<Nursery> nurseryFor(const Launch &launch);
    // It is gone: the next process of its kind gets another.
    void forget(const std::shared_ptr<Nursery> &nursery);

private:
    std::vector<std::pair<Launch, std::shared_ptr<Nursery>>> all_;
};

} // namespace sim
