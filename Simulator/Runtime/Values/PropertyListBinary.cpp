// The binary form: objects that refer to one another by number through a table of offsets.
#include "PropertyListReader.hpp"
#include "PropertyListText.hpp"

#include <bit>

namespace sim {

namespace {

constexpr size_t kHeaderSize = 8;
constexpr size_t kTrailerSize = 32;
// What a list may unfold to when objects are referred to many times.
constexpr size_t kMostObjects = 1 << 20;
constexpr size_t kMostBytes = 4 * kLongestPropertyList; // in texts and data

enum Kind : uint8_t {
    kSimple = 0x0,
    kInteger = 0x1,
    kReal = 0x2,
    kDate = 0x3,
    kData = 0x4,
    kAscii = 0x5,
    kUtf16 = 0x6,
    kArray = 0xa,
    kDictionary = 0xd,
};
constexpr uint8_t kNull = 0x00, kFalse = 0x08, kTrue = 0x09;
constexpr uint8_t kLongCount = 0xf;

class BinaryReader {
public:
    BinaryReader(std::string_view bytes, PropertyListBuilder &builder) : bytes_(bytes), builder_(builder) {}

    void readDocument() {
        if (bytes_.size() < kHeaderSize + kTrailerSize) fail("too short");
        size_t trailer = bytes_.size() - kTrailerSize;
        offsetSize_ = number(trailer + 6, 1);
        referenceSize_ = number(trailer + 7, 1);
        count_ = number(trailer + 8, 8);
        uint64_t top = number(trailer + 16, 8);
        table_ = number(trailer + 24, 8);
        if (offsetSize_ < 1 || offsetSize_ > 8 || referenceSize_ < 1 || referenceSize_ > 8)
            fail("bad trailer");
        if (table_ < kHeaderSize || table_ > trailer || count_ > (trailer - table_) / offsetSize_)
            fail("bad trailer");
        readObject(top);
    }

private:
    struct Object {
        uint8_t kind, low;
        size_t at; // what follows the marker
    };

    [[noreturn]] static void fail(const char *what) {
        throw PropertyListError(std::string("binary: ") + what);
    }

    uint64_t number(size_t at, size_t size) const {
        uint64_t result = 0;
        for (char byte : bytes_.substr(at, size)) result = result << 8 | static_cast<unsigned char>(byte);
        return result;
    }

    // Objects lie between header and table.
    std::string_view content(size_t at, uint64_t size) const {
        if (at > table_ || size > table_ - at) fail("an object goes past the end");
        return bytes_.substr(at, size);
    }

    static void spend(size_t amount, size_t &budget) {
        if (amount > budget) fail("unfolds to too much");
        budget -= amount;
    }

    Object find(uint64_t reference) {
        if (reference >= count_) fail("a reference to no object");
        uint64_t offset = number(table_ + reference * offsetSize_, offsetSize_);
        if (offset < kHeaderSize || offset >= table_) fail("an offset that leads nowhere");
        spend(1, objectsLeft_);
        auto marker = static_cast<uint8_t>(bytes_[offset]);
        return {static_cast<uint8_t>(marker >> 4), static_cast<uint8_t>(marker & 0xf), offset + 1};
    }

    // How many bytes or members the object has; goes past the count when it stands apart.
    uint64_t takeCount(Object &object) {
        if (object.low != kLongCount) return object.low;
        auto marker = static_cast<uint8_t>(content(object.at, 1)[0]);
        size_t size = size_t{1} << (marker & 0xf);
        if (marker >> 4 != kInteger || size > 8) fail("bad count");
        content(object.at + 1, size);
        uint64_t count = number(object.at + 1, size);
        object.at += 1 + size;
        return count;
    }

    uint64_t scalar(const Object &object, size_t size) const {
        content(object.at, size);
        return number(object.at, size);
    }

    void readObject(uint64_t reference) {
        Object object = find(reference);
        switch (object.kind) {
        case kSimple:
            return readSimple(object.low);
        case kInteger:
            return readInteger(object);
        case kReal:
            return builder_.real(readReal(object));
        case kDate:
            if (object.low != 3) fail("a date of another size");
            return builder_.date(std::bit_cast<double>(scalar(object, 8)));
        case kData: {
            uint64_t size = takeCount(object);
            std::string_view bytes = content(object.at, size);
            spend(bytes.size(), bytesLeft_);
            return builder_.data(bytes);
        }
        case kAscii:
        case kUtf16:
            return builder_.string(readString(object));
        case kArray:
            return readArray(object);
        case kDictionary:
            return readDictionary(object);
        default:
            fail("an object of an unknown kind");
        }
    }

    void readSimple(uint8_t marker) {
        if (marker == kNull) return builder_.null();
        if (marker != kTrue && marker != kFalse) fail("an object of an unknown kind");
        builder_.boolean(marker == kTrue);
    }

    // Shorter ones are without sign; of sixteen bytes the last eight count.
    void readInteger(const Object &object) {
        if (object.low > 4) fail("an integer of another size");
        size_t size = size_t{1} << object.low;
        if (size <= 8) return builder_.integer(static_cast<int64_t>(scalar(object, size)));
        content(object.at, size);
        builder_.integer(static_cast<int64_t>(number(object.at + 8, 8)));
    }

    double readReal(const Object &object) const {
        if (object.low == 2) return std::bit_cast<float>(static_cast<uint32_t>(scalar(object, 4)));
        if (object.low != 3) fail("a real number of another size");
        return std::bit_cast<double>(scalar(object, 8));
    }

    std::string readString(Object object) {
        uint64_t count = takeCount(object);
        if (object.kind == kAscii) {
            std::string_view text = content(object.at, count);
            spend(text.size(), bytesLeft_);
            if (!isUtf8(text)) fail("text that is not ASCII");
            return std::string(text);
        }
        if (count > bytes_.size()) fail("an object goes past the end");
        std::string_view units = content(object.at, 2 * count);
        spend(units.size(), bytesLeft_);
        return utf8FromUtf16(units, true);
    }

    uint64_t reference(size_t at, uint64_t index) const {
        return number(at + index * referenceSize_, referenceSize_);
    }

    // Checks that `count` references follow.
    void enter(size_t at, uint64_t count) {
        if (count > bytes_.size()) fail("an object goes past the end");
        content(at, count * referenceSize_);
        if (++depth_ > kDeepestPropertyList) fail("nested too deeply");
    }

    void readArray(Object object) {
        uint64_t count = takeCount(object);
        enter(object.at, count);
        builder_.beginArray();
        for (uint64_t i = 0; i < count; ++i) readObject(reference(object.at, i));
        builder_.endArray();
        --depth_;
    }

    // First all keys, then all values.
    void readDictionary(Object object) {
        uint64_t count = takeCount(object);
        if (count > bytes_.size()) fail("an object goes past the end");
        enter(object.at, 2 * count);
        builder_.beginDictionary();
        for (uint64_t i = 0; i < count; ++i) {
            Object key = find(reference(object.at, i));
            if (key.kind != kAscii && key.kind != kUtf16) fail("a key that is no text");
            builder_.key(readString(key));
            readObject(reference(object.at, count + i));
        }
        builder_.endDictionary();
        --depth_;
    }

    std::string_view bytes_;
    PropertyListBuilder &builder_;
    size_t offsetSize_ = 0, referenceSize_ = 0, table_ = 0;
    uint64_t count_ = 0;
    size_t objectsLeft_ = kMostObjects, bytesLeft_ = kMostBytes;
    int depth_ = 0;
};

} // namespace

void readBinaryPropertyList(std::string_view bytes, PropertyListBuilder &builder) {
    BinaryReader(bytes, builder).readDocument();
}

} // namespace sim
