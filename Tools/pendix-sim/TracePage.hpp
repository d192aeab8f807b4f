// Traces as one page that opens from disk.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace sim {

// Puts the traces (Trace::json(), one of each script) and the page's files together. `folder` holds
// index.html and what that names. Throws std::runtime_error when a file cannot be read or written.
void writeTracePage(const std::filesystem::path &file, const std::filesystem::path &folder,
                    const std::vector<std::string> &traces);

} // namespace sim
