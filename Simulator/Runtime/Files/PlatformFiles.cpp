#include "PlatformFiles.hpp"

#include <fstream>
#include <iterator>
#include <utility>

namespace sim {

namespace {
std::string &folder() {
    static std::string path;
    return path;
}
} // namespace

void setPlatformFolder(std::string path) { folder() = std::move(path); }
const std::string &platformFolder() { return folder(); }

std::optional<std::string> readPlatformFile(const std::string &name) {
    if (folder().empty()) return std::nullopt;
    std::ifstream file(folder() + "/" + name, std::ios::binary);
    if (!file) return std::nullopt;
    return std::string(std::istreambuf_iterator<char>(file), {});
}

} // namespace sim
