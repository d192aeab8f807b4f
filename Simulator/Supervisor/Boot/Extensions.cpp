#include "Extensions.hpp"

#include "OptionReader.hpp"

#include <algorithm>

namespace sim {

namespace fs = std::filesystem;

namespace {

constexpr const char *kDescription = "extension.json";

[[noreturn]] void refuse(const std::string &problem) { throw BootError("boot: extensions: " + problem); }

ExtensionFiles filesOf(const fs::path &library) {
    fs::path filter = fs::path(library).replace_extension(".plist");
    if (!fs::is_regular_file(filter))
        refuse("there is no filter " + filter.string() + " that says which processes load the library");
    return {library, filter};
}

} // namespace

std::vector<ExtensionFiles> extensionFiles(const fs::path &path, const std::string &built) {
    if (!fs::exists(path)) refuse("there is no " + path.string());
    if (fs::is_regular_file(path)) return {filesOf(path)};
    if (fs::exists(path / kDescription)) {
        if (!fs::is_directory(path / built))
            refuse("there is no " + (path / built).string() + ": build it first, with \"pendix-sim build\"");
        return extensionFiles(path / built, built);
    }
    std::vector<ExtensionFiles> result;
    for (const auto &entry : fs::directory_iterator(path))
        if (entry.path().extension() == ".dylib") result.push_back(filesOf(entry.path()));
    if (result.empty()) refuse("there is no library in " + path.string());
    std::ranges::sort(result, {}, &ExtensionFiles::library);
    return result;
}

std::vector<std::string> absolutePaths(const std::vector<std::string> &paths, const fs::path &folder) {
    std::vector<std::string> result;
    for (const auto &path : paths)
        result.push_back((fs::current_path() / folder / path).lexically_normal().string());
    return result;
}

} // namespace sim
