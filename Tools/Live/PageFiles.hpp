// The page's files as they lie in the build.
#pragma once

#include "Tools/Live/Web/WebServer.hpp"

#include <filesystem>

namespace sim {

// By the path under which they are asked for; index.html is "/". Throws std::runtime_error when the folder
// or its index.html is missing.
std::map<std::string, PageFile> readPageFiles(const std::filesystem::path &folder);

} // namespace sim
