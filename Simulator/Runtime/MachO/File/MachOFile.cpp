#include "MachOFile.hpp"

#include <algorithm>
#include <sstream>

namespace sim::macho {

namespace {

constexpr uint32_t kUniversal = 0xcafebabe, kThin = 0xfeedfacf, kArm64 = 0x0100000c;
constexpr uint32_t kLibrary = 6, kBundle = 8;
constexpr uint64_t kPage = 0x4000;        // segments begin on one
constexpr uint64_t kMostMemory = 1 << 28; // of a library: far beyond any that is meant
constexpr uint32_t kMostCommands = 1000, kMostSlices = 16;

enum Command : uint32_t {
    kSymbolTable = 0x2,
    kSymbolIndex = 0xb,
    kLoadLibrary = 0xc,
    kOwnName = 0xd,
    kSegment = 0x19,
    kIdentifier = 0x1b,
    kSignature = 0x1d,
    kOldestSystem = 0x25,
    kFunctionStarts = 0x26,
    kDataInCode = 0x29,
    kSourceVersion = 0x2a,
    kEncryption = 0x2c,
    kLoadWeakLibrary = 0x80000018,
    kLoaderTables = 0x80000022,
};

std::string hexadecimal(uint64_t number) {
    std::ostringstream text;
    text << "0x" << std::hex << number;
    return text.str();
}

Bytes arm64Slice(Bytes file) {
    if (file.bigEndian(0) == kUniversal) {
        uint32_t count = file.bigEndian(4);
        if (count > kMostSlices) throw Error(4, std::to_string(count) + " slices");
        for (uint32_t i = 0; i < count; ++i) {
            uint64_t entry = 8 + uint64_t{20} * i;
            if (file.bigEndian(entry) == kArm64)
                return file.part(file.bigEndian(entry + 8), file.bigEndian(entry + 12));
        }
        throw Error(4, "there is no arm64 slice");
    }
    return file;
}

} // namespace

bool isMachO(std::span<const uint8_t> start) {
    Bytes bytes(start);
    return start.size() >= 4 && (bytes.bigEndian(0) == kUniversal || bytes.number<uint32_t>(0) == kThin);
}

File::File(std::span<const uint8_t> bytes) : slice_(arm64Slice(Bytes(bytes))) {
    if (slice_.number<uint32_t>(0) != kThin) throw Error(slice_.origin(), "not a Mach-O file of 64 bits");
    if (slice_.number<uint32_t>(4) != kArm64) throw Error(slice_.origin() + 4, "not for arm64");
    uint32_t kind = slice_.number<uint32_t>(12);
    if (kind != kLibrary && kind != kBundle)
        throw Error(slice_.origin() + 12, "neither a library nor a bundle");
    readCommands();
    checkSegments();
}

void File::readCommands() {
    uint32_t count = slice_.number<uint32_t>(16);
    if (count > kMostCommands) throw Error(slice_.origin() + 16, std::to_string(count) + " load commands");
    std::optional<Bytes> symbols;
    for (uint64_t i = 0, at = 32; i < count; ++i) {
        auto kind = slice_.number<uint32_t>(at), size = slice_.number<uint32_t>(at + 4);
        if (size < 8)
            throw Error(slice_.origin() + at + 4, "a load command of " + std::to_string(size) + " bytes");
        Bytes command = slice_.part(at, size);
        if (kind == kSymbolTable) symbols = command;
        readCommand(kind, command);
        at += size;
    }
    // They are held against the segments, which may come later.
    if (symbols) readSymbols(*symbols);
}

void File::readCommand(uint32_t kind, const Bytes &command) {
    switch (kind) {
    case kSegment:
        return readSegment(command);
    case kLoaderTables:
        return readTables(command);
    case kEncryption:
        if (command.number<uint32_t>(16)) throw Error(command.origin() + 16, "the library is encrypted");
        return;
    case kSymbolTable:
    case kSymbolIndex:
    case kLoadLibrary: // every symbol is looked for by its name alone
    case kLoadWeakLibrary:
    case kOwnName:
    case kIdentifier:
    case kSignature:
    case kOldestSystem:
    case kFunctionStarts:
    case kDataInCode:
    case kSourceVersion:
        return;
    default:
        throw Error(command.origin(), "an unknown load command, " + hexadecimal(kind));
    }
}

void File::readSegment(const Bytes &command) {
    constexpr uint32_t kWrite = 2, kExecute = 4;
    auto protection = command.number<uint32_t>(60);
    Segment segment{.name = std::string(command.field(8, 16)),
                    .address = command.number<uint64_t>(24),
                    .size = command.number<uint64_t>(32),
                    .offset = command.number<uint64_t>(40),
                    .fileSize = command.number<uint64_t>(48),
                    .writable = (protection & kWrite) != 0,
                    .executable = (protection & kExecute) != 0};
    slice_.part(segment.offset, segment.fileSize);
    if (segment.fileSize > segment.size)
        throw Error(command.origin() + 48, segment.name + " is larger in the file");
    if (segment.size > kMostMemory || segment.address > kMostMemory)
        throw Error(command.origin() + 24, segment.name + " lies beyond what a library may take");
    segments_.push_back(segment);
    for (uint64_t i = 0; i < command.number<uint32_t>(64); ++i)
        readSection(command.part(72 + 80 * i, 80), segment);
}

void File::readSection(const Bytes &entry, const Segment &segment) {
    constexpr uint32_t kTypeMask = 0xff;
    // Plain and zeroed bytes, literals, pointers to symbols, stubs, initialisers, coalesced definitions.
    constexpr uint32_t kKnown = 0x3ff | 1 << 0xb | 1 << 0xe;
    Section section{.name = std::string(entry.field(0, 16)),
                    .address = entry.number<uint64_t>(32),
                    .size = entry.number<uint64_t>(40)};
    if (!segment.contains(section.address, section.size))
        throw Error(entry.origin(), section.name + " lies outside of " + segment.name);
    uint32_t type = entry.number<uint32_t>(64) & kTypeMask;
    if (type > 0xe || !(kKnown >> type & 1))
        throw Error(entry.origin() + 64, section.name + " is of an unknown type, " + hexadecimal(type));
    sections_.push_back(section);
}

void File::readTables(const Bytes &command) {
    auto table = [&](uint64_t at) {
        return slice_.part(command.number<uint32_t>(at), command.number<uint32_t>(at + 4));
    };
    tables_ = {.rebases = table(8), .binds = table(16), .lazyBinds = table(32), .weakBinds = table(24)};
}

void File::readSymbols(const Bytes &command) {
    constexpr uint8_t kDebugger = 0xe0, kTypeMask = 0x0e, kInSection = 0x0e;
    Bytes table = slice_.part(command.number<uint32_t>(8), uint64_t{16} * command.number<uint32_t>(12));
    Bytes names = slice_.part(command.number<uint32_t>(16), command.number<uint32_t>(20));
    for (uint64_t at = 0; at < table.size(); at += 16) {
        auto type = table.number<uint8_t>(at + 4);
        auto address = table.number<uint64_t>(at + 8);
        if (type & kDebugger || (type & kTypeMask) != kInSection) continue;
        if (!segmentOf(address, 0)) throw Error(table.origin() + at, "a symbol lies in no segment");
        symbols_.push_back({std::string(names.text(table.number<uint32_t>(at))), address});
    }
    std::ranges::stable_sort(symbols_, {}, &Symbol::address);
}

void File::checkSegments() const {
    if (segments_.empty()) throw Error(slice_.origin() + 32, "there is no segment");
    uint64_t end = 0;
    for (const auto &segment : segments_) {
        if (segment.address % kPage) throw Error(slice_.origin(), segment.name + " does not begin on a page");
        if (segment.address < end)
            throw Error(slice_.origin(), segment.name + " lies over the segment before it");
        if (segment.writable && segment.executable)
            throw Error(slice_.origin(), segment.name + " can be written and run");
        end = segment.address + segment.size;
    }
}

uint64_t File::memorySize() const { return segments_.back().address + segments_.back().size; }

const Segment *File::segmentOf(uint64_t address, uint64_t size) const {
    auto found =
        std::ranges::find_if(segments_, [&](const auto &segment) { return segment.contains(address, size); });
    return found == segments_.end() ? nullptr : &*found;
}

const Section *File::section(std::string_view name) const {
    auto found = std::ranges::find(sections_, name, &Section::name);
    return found == sections_.end() ? nullptr : &*found;
}

uint64_t File::offsetOf(uint64_t address) const {
    const Segment *segment = segmentOf(address, 0);
    return slice_.origin() + (segment ? segment->offset + (address - segment->address) : 0);
}

Bytes File::at(uint64_t address, uint64_t size) const {
    const Segment *segment = segmentOf(address, size);
    uint64_t within = segment ? address - segment->address : 0;
    if (!segment || within > segment->fileSize || size > segment->fileSize - within)
        throw Error(offsetOf(address), "nothing is at the address " + hexadecimal(address));
    return slice_.part(segment->offset + within, size);
}

std::string_view File::textAt(uint64_t address) const {
    at(address, 1);
    const Segment *segment = segmentOf(address, 1);
    return slice_.part(segment->offset, segment->fileSize).text(address - segment->address);
}

} // namespace sim::macho
