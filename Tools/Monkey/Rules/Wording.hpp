// What the extension is to say in each language: the texts that are installed with it.
#pragma once

#include <string>
#include <string_view>

namespace sim {

// The text under that key; the English one where the language has none, and where there is no such language.
// Read once, from the stage beside the running program. Throws std::logic_error for a key that English lacks.
const std::string &wording(const std::string &language, std::string_view key);

// Whether it is one of the texts of that language.
bool isWording(const std::string &language, std::string_view text);

} // namespace sim
