#include "Bytes.hpp"

#include <sstream>

namespace sim::macho {

namespace {

std::string located(uint64_t offset, const std::string &what) {
    std::ostringstream text;
    text << "at 0x" << std::hex << offset << ": " << what;
    return text.str();
}

} // namespace

Error::Error(uint64_t offset, const std::string &what) : std::runtime_error(located(offset, what)) {}

Bytes Bytes::part(uint64_t offset, uint64_t size) const {
    if (offset > bytes_.size() || size > bytes_.size() - offset)
        throw Error(origin_ + offset, "the file is cut short, " + std::to_string(size) + " bytes are wanted");
    return Bytes(bytes_.subspan(offset, size), origin_ + offset);
}

std::string_view Bytes::text(uint64_t offset) const {
    Bytes rest = part(offset, 0);
    auto most = bytes_.size() - offset;
    const auto *begin = reinterpret_cast<const char *>(rest.data());
    size_t length = strnlen(begin, most);
    if (length == most) throw Error(rest.origin(), "a text has no end");
    return {begin, length};
}

std::string_view Bytes::field(uint64_t offset, uint64_t size) const {
    const auto *begin = reinterpret_cast<const char *>(part(offset, size).data());
    return {begin, strnlen(begin, size)};
}

std::string_view Cursor::text() {
    std::string_view result = bytes_.text(at_);
    at_ += result.size() + 1;
    return result;
}

uint64_t Cursor::unsignedNumber() {
    uint64_t start = offset(), value = 0;
    for (unsigned shift = 0;; shift += 7) {
        uint8_t next = byte();
        uint64_t digits = next & 0x7f;
        if (shift >= 64 || (digits << shift) >> shift != digits) throw Error(start, "a number is too long");
        value |= digits << shift;
        if (!(next & 0x80)) return value;
    }
}

int64_t Cursor::signedNumber() {
    uint64_t start = offset(), value = 0;
    for (unsigned shift = 0;;) {
        uint8_t next = byte();
        if (shift >= 64) throw Error(start, "a number is too long");
        value |= static_cast<uint64_t>(next & 0x7f) << shift;
        shift += 7;
        if (next & 0x80) continue;
        if (shift < 64 && next & 0x40) value |= ~uint64_t{0} << shift;
        return static_cast<int64_t>(value);
    }
}

} // namespace sim::macho
