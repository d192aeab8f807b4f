#include "Fixups.hpp"

namespace sim::macho {

namespace {

constexpr uint8_t kOperation = 0xf0, kImmediate = 0x0f, kPointer = 1;
constexpr uint64_t kWord = 8;

// Where the operations of a table are at work.
class Place {
public:
    Place(const File &file, const char *what) : file_(file), what_(what) {}

    void toSegment(const Cursor &cursor, size_t index, uint64_t offset) {
        if (index >= file_.segments().size())
            throw Error(cursor.offset(), std::string(what_) + " in a segment that is not there");
        address_ = file_.segments()[index].address + offset;
    }
    // May wrap, as the tables do to go back.
    void skip(uint64_t count) { address_ += count; }
    // The word's address; goes on behind it.
    uint64_t take(const Cursor &cursor) {
        uint64_t here = address_;
        const Segment *segment = file_.segmentOf(here, kWord);
        bool inFile = segment && here - segment->address + kWord <= segment->fileSize;
        if (!inFile || !segment->writable)
            throw Error(cursor.offset(), std::string(what_) + " of a word that is not there");
        address_ += kWord;
        return here;
    }

private:
    const File &file_;
    const char *what_;
    uint64_t address_ = 0;
};

[[noreturn]] void unknown(const Cursor &cursor, const char *what) {
    throw Error(cursor.offset() - 1, std::string("an unknown operation in the table of ") + what);
}

// No table takes more steps than there are words.
void checkCount(const File &file, const Cursor &cursor, uint64_t count) {
    if (count > file.memorySize() / kWord) throw Error(cursor.offset(), "more words than the library has");
}

std::vector<uint64_t> readRebases(const File &file) {
    Cursor cursor(file.tables().rebases);
    Place place(file, "a rebase");
    std::vector<uint64_t> result;
    auto run = [&](uint64_t count, uint64_t skip) {
        checkCount(file, cursor, count);
        for (; count; --count) {
            result.push_back(place.take(cursor));
            place.skip(skip);
        }
        checkCount(file, cursor, result.size());
    };
    while (!cursor.atEnd()) {
        uint8_t next = cursor.byte(), immediate = next & kImmediate;
        switch (next & kOperation) {
        case 0x00:
            return result;
        case 0x10:
            if (immediate != kPointer) unknown(cursor, "rebases");
            break;
        case 0x20:
            place.toSegment(cursor, immediate, cursor.unsignedNumber());
            break;
        case 0x30:
            place.skip(cursor.unsignedNumber());
            break;
        case 0x40:
            place.skip(immediate * kWord);
            break;
        case 0x50:
            run(immediate, 0);
            break;
        case 0x60:
            run(cursor.unsignedNumber(), 0);
            break;
        case 0x70:
            run(1, cursor.unsignedNumber());
            break;
        case 0x80: {
            uint64_t count = cursor.unsignedNumber();
            run(count, cursor.unsignedNumber());
            break;
        }
        default:
            unknown(cursor, "rebases");
        }
    }
    return result;
}

void readBindings(const File &file, const Bytes &table, bool lazy, std::map<uint64_t, Binding> &result) {
    Cursor cursor(table);
    Place place(file, "a binding");
    Binding binding;
    auto run = [&](uint64_t count, uint64_t skip) {
        checkCount(file, cursor, count);
        if (count && binding.symbol.empty()) throw Error(cursor.offset(), "a binding without a symbol");
        for (; count; --count) {
            result[place.take(cursor)] = binding;
            place.skip(skip);
        }
    };
    while (!cursor.atEnd()) {
        uint8_t next = cursor.byte(), immediate = next & kImmediate;
        switch (next & kOperation) {
        case 0x00:
            if (!lazy) return;
            break; // there it ends one entry
        case 0x10:
        case 0x30:
            break; // which library: symbols are found by name
        case 0x20:
            cursor.unsignedNumber();
            break;
        case 0x40:
            binding.symbol = cursor.text();
            break;
        case 0x50:
            if (immediate != kPointer) unknown(cursor, "bindings");
            break;
        case 0x60:
            binding.addend = cursor.signedNumber();
            break;
        case 0x70:
            place.toSegment(cursor, immediate, cursor.unsignedNumber());
            break;
        case 0x80:
            place.skip(cursor.unsignedNumber());
            break;
        case 0x90:
            run(1, 0);
            break;
        case 0xa0:
            run(1, cursor.unsignedNumber());
            break;
        case 0xb0:
            run(1, immediate * kWord);
            break;
        case 0xc0: {
            uint64_t count = cursor.unsignedNumber();
            run(count, cursor.unsignedNumber());
            break;
        }
        default:
            unknown(cursor, "bindings");
        }
    }
}

} // namespace

Fixups readFixups(const File &file) {
    Fixups result{.rebases = readRebases(file), .bindings = {}};
    readBindings(file, file.tables().binds, false, result.bindings);
    readBindings(file, file.tables().lazyBinds, true, result.bindings);
    if (file.tables().weakBinds.size())
        throw Error(file.tables().weakBinds.origin(), "weak bindings, which this loader does not know");
    return result;
}

} // namespace sim::macho
