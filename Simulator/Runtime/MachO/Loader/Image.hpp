// A library in memory: its segments, each with its own protection, and what was changed in them.
#pragma once

#include "Runtime/MachO/File/Fixups.hpp"

#include <cstring>
#include <functional>

namespace sim {

class Image {
public:
    // Maps the segments, all writable as yet, and moves what moves. Throws std::runtime_error without memory.
    Image(const macho::File &file, const macho::Fixups &fixups);
    Image(const Image &) = delete;

    // Where the file's address lies. The file was read: the address is one of its own.
    uint8_t *at(uint64_t address) const { return memory_ + address; }
    template <typename Value>
    Value read(uint64_t address) const {
        Value value;
        memcpy(&value, at(address), sizeof value);
        return value;
    }
    template <typename Value>
    void write(uint64_t address, Value value) const {
        memcpy(at(address), &value, sizeof value);
    }
    uint8_t *begin() const { return memory_; }
    uint64_t size() const { return size_; }

    // From now on code can be run and only what is data can be written.
    void protect(const macho::File &file) const;

private:
    uint8_t *memory_;
    uint64_t size_;
};

} // namespace sim
