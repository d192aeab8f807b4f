#include "MutatedFiles.hpp"

#include "Runtime/MachO/File/CallShape.hpp"
#include "Runtime/MachO/File/Metadata.hpp"
#include "Runtime/MachO/File/Symbols.hpp"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <random>
#include <stdexcept>

using namespace sim::macho;

namespace {

// What a number in a file is made into: the ends of its range, and a little beside what it was.
template <typename Number>
void spoilNumber(std::vector<uint8_t> &bytes, size_t at, std::minstd_rand &random) {
    if (at + sizeof(Number) > bytes.size()) return;
    Number value;
    memcpy(&value, &bytes[at], sizeof value);
    const Number choices[] = {0,
                              static_cast<Number>(~Number{0}),
                              static_cast<Number>(~Number{0} >> 1),
                              static_cast<Number>(value + 1),
                              static_cast<Number>(value - 1),
                              static_cast<Number>(value * 2),
                              static_cast<Number>(bytes.size()),
                              static_cast<Number>(random())};
    value = choices[random() % std::size(choices)];
    memcpy(&bytes[at], &value, sizeof value);
}

void spoil(std::vector<uint8_t> &bytes, std::minstd_rand &random) {
    // Half of all faults lie where the load commands are, and the tables, which stand at the end.
    size_t commands = std::min<size_t>(bytes.size(), 0x800), size = bytes.size();
    size_t at = random() % 2   ? random() % commands
                : random() % 2 ? size - 1 - random() % (size / 4)
                               : random() % size;
    switch (random() % 5) {
    case 0:
        bytes[at] ^= static_cast<uint8_t>(1U << random() % 8);
        break;
    case 1:
        bytes[at] = static_cast<uint8_t>(random());
        break;
    case 2:
        spoilNumber<uint32_t>(bytes, at & ~size_t{3}, random);
        break;
    case 3:
        spoilNumber<uint64_t>(bytes, at & ~size_t{7}, random);
        break;
    default: {
        size_t from = random() % size, count = std::min({size_t{64}, size - from, size - at});
        std::copy_n(std::vector<uint8_t>(bytes.begin() + static_cast<long>(from), bytes.end()).begin(), count,
                    bytes.begin() + static_cast<long>(at));
    }
    }
}

void demand(bool holds, const char *what) {
    if (!holds) throw std::logic_error(what);
}

void checkMethods(const File &file, const Methods &methods) {
    for (const auto *list : {&methods.ofInstances, &methods.ofClass})
        for (const auto &method : *list) {
            const Segment *segment = file.segmentOf(method.implementation, 4);
            demand(segment && segment->executable, "a method out of the code");
            try {
                callShape(method.types);
            } catch (const std::invalid_argument &) {}
        }
}

void checkWords(const File &file, uint64_t address, uint64_t size) {
    const Segment *segment = file.segmentOf(address, size);
    demand(segment && segment->writable, "a word that cannot be written");
}

} // namespace

std::vector<uint8_t> fileOf(const std::string &path) {
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

std::vector<uint8_t> mutated(const std::vector<uint8_t> &file, unsigned number) {
    std::minstd_rand random(number + 1);
    random.discard(3);
    std::vector<uint8_t> bytes = file;
    if (number % 10 == 0) bytes.resize(1 + random() % bytes.size());
    for (unsigned faults = 1 + random() % 4; faults; --faults) spoil(bytes, random);
    return bytes;
}

std::string readWhole(const std::vector<uint8_t> &bytes) {
    try {
        File file(bytes);
        Fixups fixups = readFixups(file);
        Metadata metadata = readMetadata(file, fixups);
        for (uint64_t address : fixups.rebases) checkWords(file, address, 8);
        for (const auto &[address, binding] : fixups.bindings) checkWords(file, address, 8);
        for (const auto &record : metadata.classes) {
            checkMethods(file, record.methods);
            for (const auto &variable : record.variables)
                if (variable.offsetAt) checkWords(file, variable.offsetAt, 4);
        }
        for (const auto &category : metadata.categories) checkMethods(file, category.methods);
        for (const auto &string : metadata.strings)
            demand(file.textAt(string.text).size() == string.length, "a text");
        for (const auto &symbol : file.symbols()) symbolAt(file, symbol.address);
        return "";
    } catch (const Error &error) {
        return error.what();
    }
}
