// How a method or a block is called on arm64, from its type encoding: as far as the device's convention and
// the one here differ. There, the caller makes small arguments whole words, and arguments on the stack are
// packed; here, neither. What each side leaves in a small value's upper bits is checked; packed arguments are
// refused.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace sim::macho {

enum class Width : uint8_t {
    other,      // a whole word, or nothing that lies in an integer register
    truth,      // a BOOL, of which both sides expect 0 or 1
    signedHalf, // 16 bits
    unsignedHalf,
};

struct SmallArgument {
    unsigned index; // of its register, x0 to x7
    Width width;
};

struct CallShape {
    Width result = Width::other;
    std::vector<SmallArgument> small; // in registers
    bool usesStack = false;           // not all arguments fit into registers
    bool packed = false;              // one on the stack is narrower than a word: the two conventions differ
};

// Of "v24@0:8@16" or of a block's "v12@?0B8". Throws std::invalid_argument for a type that the conventions
// treat differently or that is unknown: a long double, a vector, bits.
CallShape callShape(std::string_view encoding);

} // namespace sim::macho
