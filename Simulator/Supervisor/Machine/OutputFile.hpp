// Files that a run leaves for people.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace sim {

// Writes the bytes, and makes the folders that the file lies in. Throws std::runtime_error with the reason.
void writeOutput(const std::filesystem::path &file, const std::string &bytes);

// `name` without the ending ".png", which every picture gets. Throws std::runtime_error for an ending of
// another kind of picture.
std::string pictureName(const std::string &name);

} // namespace sim
