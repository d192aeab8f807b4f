// The files of an extension that a device is given beside the package, or instead of it.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace sim {

struct ExtensionFiles {
    std::filesystem::path library; // NAME.dylib
    std::filesystem::path filter;  // NAME.plist beside it
};

// Those that `path` stands for: a library, a folder of libraries, or the folder of an extension's sources
// that was built, in which they lie in `built`. Throws BootError with what is missing and what makes it.
std::vector<ExtensionFiles> extensionFiles(const std::filesystem::path &path, const std::string &built);

// The paths as they are seen from `folder`, made absolute.
std::vector<std::string> absolutePaths(const std::vector<std::string> &paths,
                                       const std::filesystem::path &folder);

} // namespace sim
