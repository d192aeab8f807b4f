// A device's library as a file: its arm64 slice, read and checked. Knows nothing of the machine that it would
// run on, so that it can be read, and tested, anywhere.
#pragma once

#include "Bytes.hpp"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace sim::macho {

struct Section {
    std::string name;
    uint64_t address, size;
};

// Addresses are those of the file, before a loader moves it.
struct Segment {
    std::string name;
    uint64_t address, size;    // in memory
    uint64_t offset, fileSize; // in the slice
    bool writable, executable;

    bool contains(uint64_t at, uint64_t length) const {
        return at >= address && at - address <= size && length <= size - (at - address);
    }
};

struct Symbol {
    std::string name; // as the linker has it, with its leading underscore
    uint64_t address;
};

// Parts of the slice that hold tables for the loader; absent ones are empty.
struct LoaderTables {
    Bytes rebases{{}}, binds{{}}, lazyBinds{{}}, weakBinds{{}};
};

class File {
public:
    // Keeps a reference to the bytes. Takes the arm64 slice of a universal file, or a thin file of that kind.
    // Throws Error, also for a load command that this does not know.
    explicit File(std::span<const uint8_t> bytes);

    const std::vector<Segment> &segments() const { return segments_; }
    const std::vector<Section> &sections() const { return sections_; }
    const LoaderTables &tables() const { return tables_; }
    // Defined in this file, sorted by address; hidden ones too. Those for debuggers are left out.
    const std::vector<Symbol> &symbols() const { return symbols_; }
    // The end of the last segment in memory.
    uint64_t memorySize() const;

    // The bytes at an address, as far as the file has them. Throws Error when they are in no segment.
    Bytes at(uint64_t address, uint64_t size) const;
    std::string_view textAt(uint64_t address) const;
    // Where in the file the address lies, for messages.
    uint64_t offsetOf(uint64_t address) const;
    const Segment *segmentOf(uint64_t address, uint64_t size) const;
    // Null when there is none of that name.
    const Section *section(std::string_view name) const;

private:
    Bytes slice_;
    std::vector<Segment> segments_;
    std::vector<Section> sections_;
    std::vector<Symbol> symbols_;
    LoaderTables tables_;

    void readCommands();
    void readCommand(uint32_t kind, const Bytes &command);
    void readSegment(const Bytes &command);
    void readSection(const Bytes &entry, const Segment &segment);
    void readTables(const Bytes &command);
    void readSymbols(const Bytes &command);
    void checkSegments() const;
};

// Whether the bytes begin as such a file does: a universal one or a thin one of 64 bits.
bool isMachO(std::span<const uint8_t> start);

} // namespace sim::macho
