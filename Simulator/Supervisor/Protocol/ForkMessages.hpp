// What the supervisor and a nursery (Process/Shared/Nursery.hpp) tell each other, a packet each. An order
// carries the open files of the process to make; a report says what became of one.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace sim {

// Open descriptors, by what Descriptors.hpp calls them; `output` is its standard output and error.
struct ProcessFiles {
    int channel = -1, crash = -1, picture = -1, time = -1, output = -1;
};

struct ForkReport {
    enum Kind : int32_t { born, notBorn, ended };
    Kind kind;
    int32_t process;
    int32_t status; // of one that has ended, as waitpid() gives it
};

// False when the other end is gone.
bool sendOrder(int socket, const ProcessFiles &files);
bool sendReport(int socket, const ForkReport &report);
// Wait for the next; nothing when the other end is gone. The received descriptors belong to the caller and
// lie above those that a process is started with.
std::optional<ProcessFiles> receiveOrder(int socket);
std::optional<ForkReport> receiveReport(int socket);

} // namespace sim
