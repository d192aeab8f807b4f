// Old events in a temporary file without a name, which goes with the process: blocks of them, each with a
// note of the kinds that it holds.
#pragma once

#include "Runtime/Values/Value.hpp"

#include <functional>
#include <span>
#include <vector>

namespace sim {

class EventFile {
public:
    using Visitor = std::function<void(const Value &)>;

    EventFile() = default;
    ~EventFile();
    EventFile(const EventFile &) = delete;
    EventFile &operator=(const EventFile &) = delete;

    size_t size() const { return size_; }
    // Adds a block. False, and nothing is added, when there is no room.
    bool append(std::span<const Value> events);
    // Visits the events from the place `first` on, in order; of `kind` only, unless that is empty. Throws
    // std::runtime_error when the file cannot be read.
    void visit(size_t first, const std::string &kind, const Visitor &visitor) const;

private:
    struct Block {
        uint64_t kinds; // bits
        size_t begin, length, count;
    };
    uint64_t bit(const std::string &kind) const;
    uint64_t newBit(const std::string &kind);

    int descriptor_ = -1;
    size_t size_ = 0, end_ = 0;
    std::vector<Block> blocks_;
    std::vector<std::string> kinds_; // by bit; those past the last share it
};

} // namespace sim
