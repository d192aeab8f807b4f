#include "CallShape.hpp"

#include <algorithm>
#include <stdexcept>
#include <string>

namespace sim::macho {

namespace {

constexpr unsigned kRegisters = 8; // of each kind

// A type as the calling convention sees it.
struct Type {
    uint64_t size = 0, alignment = 1;
    unsigned floats = 0; // fields, where all are of one floating type; 0 otherwise
    uint64_t floatSize = 0;
    bool aggregate = false;
    Width width = Width::other;
};

class Encoding {
public:
    explicit Encoding(std::string_view text) : text_(text), all_(text) {}

    bool atEnd() const { return text_.empty(); }
    // The next type, and the place behind it that the compiler counted.
    Type next() {
        Type type = read(0);
        skip("+-0123456789");
        return type;
    }

private:
    std::string_view text_, all_;

    [[noreturn]] void fail() const {
        throw std::invalid_argument("the types \"" + std::string(all_) + "\" cannot be passed on");
    }
    char take() {
        if (text_.empty()) fail();
        char first = text_.front();
        text_.remove_prefix(1);
        return first;
    }
    void skip(const char *these) {
        text_.remove_prefix(std::min(text_.find_first_not_of(these), text_.size()));
    }
    static Type number(uint64_t size, Width width = Width::other) {
        return {.size = size, .alignment = size, .width = width};
    }
    static Type floating(uint64_t size) {
        return {.size = size, .alignment = size, .floats = 1, .floatSize = size};
    }

    Type read(int depth);
    Type object();
    Type fields(char end, int depth);
    void skipName(char end);
};

Type Encoding::read(int depth) {
    constexpr int kDeepest = 20;
    if (depth > kDeepest) fail();
    skip("rnNoORVA");
    switch (char kind = take()) {
    case 'v':
        return {};
    case 'B':
    case 'c':
    case 'C':
        return number(1, Width::truth);
    case 's':
        return number(2, Width::signedHalf);
    case 'S':
        return number(2, Width::unsignedHalf);
    case 'i':
    case 'I':
        return number(4);
    case 'l':
    case 'L':
    case 'q':
    case 'Q':
    case '#':
    case ':':
    case '*':
    case '?':
        return number(8);
    case 'f':
        return floating(4);
    case 'd':
        return floating(8);
    case '@':
        return object();
    case '^': {
        read(depth + 1);
        return number(8);
    }
    case '{':
        return fields('}', depth);
    case '[': {
        uint64_t count = 0;
        while (!atEnd() && text_.front() >= '0' && text_.front() <= '9' && count < 1000)
            count = 10 * count + static_cast<uint64_t>(take() - '0');
        Type element = read(depth + 1);
        if (take() != ']') fail();
        element.size *= count;
        element.floats *= static_cast<unsigned>(count);
        element.aggregate = true;
        element.width = Width::other;
        return element;
    }
    default:
        (void)kind;
        fail();
    }
}

// With the name of its class or, for a block, with its own types behind it.
Type Encoding::object() {
    if (!atEnd() && text_.front() == '"') {
        take();
        skipName('"');
    } else if (!atEnd() && text_.front() == '?') {
        take();
        if (!atEnd() && text_.front() == '<') skipName('>');
    }
    return number(8);
}

void Encoding::skipName(char end) {
    while (take() != end) {}
}

Type Encoding::fields(char end, int depth) {
    Type all{.aggregate = true};
    // A structure of which only the name is known takes no place.
    while (!atEnd() && text_.front() != '=' && text_.front() != end) take();
    if (!atEnd() && text_.front() == '=') take();
    bool onlyFloats = true;
    while (!atEnd() && text_.front() != end) {
        if (text_.front() == '"') {
            take();
            skipName('"');
            continue;
        }
        Type field = read(depth + 1);
        uint64_t alignment = std::max<uint64_t>(field.alignment, 1);
        all.size = (all.size + alignment - 1) / alignment * alignment + field.size;
        all.alignment = std::max(all.alignment, alignment);
        onlyFloats &= field.floats && (!all.floats || all.floatSize == field.floatSize);
        all.floats += field.floats;
        all.floatSize = field.floatSize;
    }
    if (take() != end) fail();
    all.size = (all.size + all.alignment - 1) / all.alignment * all.alignment;
    constexpr unsigned kMostFloats = 4; // of an aggregate that goes in floating registers
    if (!onlyFloats || all.floats > kMostFloats) all.floats = 0;
    return all;
}

// The registers as the arguments take them, one after the other.
struct Registers {
    CallShape &shape;
    unsigned integers = 0, floats = 0;

    void pass(const Type &type) {
        if (type.floats) return toStack(take(floats, type.floats), type);
        // A large structure goes by its address.
        bool byAddress = type.aggregate && type.size > 16;
        unsigned words = byAddress ? 1 : static_cast<unsigned>((type.size + 7) / 8);
        unsigned first = integers;
        bool fits = take(integers, words);
        if (fits && type.width != Width::other) shape.small.push_back({first, type.width});
        toStack(fits, byAddress ? Type{.size = 8, .alignment = 8} : type);
    }
    static bool take(unsigned &used, unsigned count) {
        bool fits = used + count <= kRegisters;
        used = fits ? used + count : kRegisters;
        return fits;
    }
    void toStack(bool fits, const Type &type) {
        if (fits || !type.size) return;
        shape.usesStack = true;
        shape.packed |= type.alignment < 8 || type.size % 8;
    }
};

} // namespace

CallShape callShape(std::string_view encoding) {
    CallShape shape;
    Encoding types(encoding);
    shape.result = types.next().width;
    Registers registers{shape};
    while (!types.atEnd()) registers.pass(types.next());
    return shape;
}

} // namespace sim::macho
