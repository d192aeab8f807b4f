// One end of the channel between the supervisor and a simulated process: newline-delimited JSON.
//
// The supervisor asks, {"request": name, "arguments": {…}}, and waits for the answer, which is {"result": …}
// or
// {"error": text}, with "now" and "next" (nanoseconds; null when nothing is due). Events travel as {"event":
// {…}} as soon as they happen, so that none is lost when the process dies.
#pragma once

#include "Runtime/Values/Value.hpp"

#include <optional>
#include <string>

namespace sim {

class Channel {
public:
    // Takes ownership of the descriptor of a stream socket.
    explicit Channel(int descriptor) : descriptor_(descriptor) {}
    ~Channel() { close(); }
    Channel(const Channel &) = delete;
    Channel &operator=(const Channel &) = delete;

    // A message to an end that is gone is dropped; receive() tells.
    void send(const Value &message);
    // Waits for the next message; nothing when the other end is gone.
    std::optional<Value> receive();
    void close();

private:
    int descriptor_;
    std::string buffer_;
    size_t scanned_ = 0; // bytes of the buffer without a line break
};

} // namespace sim
