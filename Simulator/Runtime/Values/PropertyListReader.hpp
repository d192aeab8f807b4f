// Event-driven parsing of property lists, for those who build something else than values of them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

namespace sim {

constexpr size_t kLongestPropertyList = 16 << 20; // bytes
constexpr int kDeepestPropertyList = 128;         // containers inside one another

// Receives one value: a scalar, or a container's beginning, content and end. In a dictionary each value
// follows its key. Texts are valid UTF-8 and may hold NUL; they, and data, last only for the call.
class PropertyListBuilder {
public:
    virtual ~PropertyListBuilder() = default;
    virtual void beginArray() = 0;
    virtual void endArray() = 0;
    virtual void beginDictionary() = 0;
    virtual void key(std::string_view text) = 0;
    virtual void endDictionary() = 0;
    virtual void null() = 0;
    virtual void boolean(bool flag) = 0;
    virtual void integer(int64_t number) = 0;
    virtual void real(double number) = 0;
    virtual void string(std::string_view text) = 0;
    virtual void data(std::string_view bytes) = 0;
    virtual void date(double secondsSince2001) = 0;
};

struct PropertyListError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

// Reads any form, within the limits above. False on what is no property list: `*error` (may be null) says
// why, and what the builder got until then is to be discarded.
bool readPropertyList(std::string_view bytes, PropertyListBuilder &builder, std::string *error);

// The single forms; each throws PropertyListError. The text forms take valid UTF-8.
void readXmlPropertyList(std::string_view text, PropertyListBuilder &builder);
void readOldStylePropertyList(std::string_view text, PropertyListBuilder &builder);
void readBinaryPropertyList(std::string_view bytes, PropertyListBuilder &builder);

// Whether a text is meant as the XML form.
bool looksLikeXmlPropertyList(std::string_view text);

} // namespace sim
