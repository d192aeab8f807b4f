#include "PropertyListReader.hpp"

#include "PropertyListText.hpp"

namespace sim {

namespace {

void readText(std::string_view text, PropertyListBuilder &builder) {
    if (!isUtf8(text)) throw PropertyListError("not text: neither UTF-8 nor, with a byte order mark, UTF-16");
    if (looksLikeXmlPropertyList(text)) {
        readXmlPropertyList(text, builder);
    } else {
        readOldStylePropertyList(text, builder);
    }
}

void readAnyForm(std::string_view bytes, PropertyListBuilder &builder) {
    if (bytes.empty()) throw PropertyListError("empty");
    if (bytes.size() > kLongestPropertyList) throw PropertyListError("longer than 16 MiB");
    if (bytes.starts_with("bplist0")) return readBinaryPropertyList(bytes, builder);
    for (bool bigEndian : {true, false})
        if (bytes.starts_with(bigEndian ? "\xfe\xff" : "\xff\xfe"))
            return readText(utf8FromUtf16(bytes.substr(2), bigEndian), builder);
    if (bytes.starts_with("\xef\xbb\xbf")) bytes.remove_prefix(3);
    readText(bytes, builder);
}

} // namespace

bool readPropertyList(std::string_view bytes, PropertyListBuilder &builder, std::string *error) {
    try {
        readAnyForm(bytes, builder);
        return true;
    } catch (const PropertyListError &problem) {
        if (error) *error = problem.what();
        return false;
    }
}

} // namespace sim
