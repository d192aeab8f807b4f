// Property lists as values: what other processes of the device keep in files.
#pragma once

#include "Value.hpp"

#include <optional>
#include <string>
#include <string_view>

namespace sim {

// Reads the XML, the binary and the old-style text form, in UTF-8 or, with a byte order mark, UTF-16. Nothing
// on input that is empty, damaged, longer than 16 MiB or nested deeper than 128 levels; `*error` (may be
// null) then says what is wrong and, for text, in which line. A text of nothing but white space and comments
// is an empty dictionary.
std::optional<Value> parsePropertyList(std::string_view bytes, std::string *error);

// The XML form as the platform lays it out, with sorted keys. Dates are written to the second. Throws
// ValueError for a null, which has no such form, at any depth.
std::string toXmlPropertyList(const Value &value);

// The file's bytes; nothing when it cannot be opened or read, or is longer than 16 MiB.
std::optional<std::string> readWholeFile(const std::string &path);

// Replaces the file atomically, by renaming a temporary one in the same folder. A new file gets the usual
// permissions, a replaced one keeps its own. On false errno says why, and the old file is untouched.
bool writeFileAtomically(const std::string &path, std::string_view bytes);

} // namespace sim
