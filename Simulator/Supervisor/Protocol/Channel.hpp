// One end of the channel between the supervisor and a simulated process: values, each packed
// (Runtime/Values/Packed.hpp) behind its length.
//
// The supervisor asks, {"request": name, "arguments": {…}}, and waits for the answer, which is {"result": …}
// or
// {"error": text}, with "now" and "next" (nanoseconds; null when nothing is due). Events travel as {"event":
// {…}} as soon as they happen, so that none is lost when the process dies.
#pragma once

#include "Runtime/Values/Value.hpp"

#include <optional>
#include <string>
#include <string_view>

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
    std::string_view waiting() const;
    bool fill(size_t wanted);

    int descriptor_;
    std::string outgoing_, incoming_;
    size_t begin_ = 0, end_ = 0; // of what has come and was not taken yet
};

} // namespace sim
