// Reads numbers and texts out of bytes that nobody vouches for: what lies outside is an error, never a crash.
#pragma once

#include <concepts>
#include <cstdint>
#include <cstring>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

namespace sim::macho {

// What is wrong with a file, and where: "at 0x1f40: …", an offset in the file.
class Error : public std::runtime_error {
public:
    Error(uint64_t offset, const std::string &what);
};

// A part of a file; `origin` is where it begins there.
class Bytes {
public:
    explicit Bytes(std::span<const uint8_t> bytes, uint64_t origin = 0) : bytes_(bytes), origin_(origin) {}

    uint64_t size() const { return bytes_.size(); }
    uint64_t origin() const { return origin_; }
    const uint8_t *data() const { return bytes_.data(); }

    // All of these throw Error where a byte of what is asked for lies outside.
    Bytes part(uint64_t offset, uint64_t size) const;
    template <std::integral Number>
    Number number(uint64_t offset) const {
        Number result;
        memcpy(&result, part(offset, sizeof result).data(), sizeof result);
        return result;
    }
    uint32_t bigEndian(uint64_t offset) const { return __builtin_bswap32(number<uint32_t>(offset)); }
    // Up to the first zero, which must be there.
    std::string_view text(uint64_t offset) const;
    // Up to the first zero, or the whole of the field.
    std::string_view field(uint64_t offset, uint64_t size) const;

private:
    std::span<const uint8_t> bytes_;
    uint64_t origin_;
};

// Walks through the bytes of a table of operations.
class Cursor {
public:
    explicit Cursor(Bytes bytes) : bytes_(bytes) {}

    bool atEnd() const { return at_ == bytes_.size(); }
    // Where in the file the next byte lies.
    uint64_t offset() const { return bytes_.origin() + at_; }
    uint8_t byte() { return bytes_.number<uint8_t>(at_++); }
    std::string_view text();
    // Numbers of variable length, seven bits a byte. More than 64 bits are an error.
    uint64_t unsignedNumber();
    int64_t signedNumber();

private:
    Bytes bytes_;
    uint64_t at_ = 0;
};

} // namespace sim::macho
