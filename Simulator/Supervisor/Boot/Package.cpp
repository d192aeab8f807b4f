#include "Package.hpp"

#include "Runtime/Values/Json.hpp"

#include <fstream>
#include <iterator>
#include <stdexcept>

namespace sim {

namespace fs = std::filesystem;

Installation findInstallation() {
    fs::path programs = fs::read_symlink("/proc/self/exe").parent_path();
    fs::path stage = programs.parent_path() / "stage";
    return {.programs = programs,
            .stageRoot = stage / "root",
            .platform = stage / "platform",
            .manifest = stage / "package.json",
            .page = stage / "page",
            .trace = stage / "trace",
            .scripts = stage / "Lua",
            .settings = stage / "settings.json"};
}

std::string readFile(const fs::path &path) {
    std::ifstream file(path, std::ios::binary);
    if (!fs::is_regular_file(path) || !file) throw std::runtime_error("cannot read " + path.string());
    return {std::istreambuf_iterator<char>(file), {}};
}

Package readPackage(const fs::path &manifest) {
    std::string text = readFile(manifest);
    try {
        Value content = parseJson(text);
        return {.library = content["library"].string(),
                .settingsFile = content["settings_file"].string(),
                .statusBarItem = content["status_bar_item"].string(),
                .activatorListener = content["activator_listener"].string(),
                .settingsEntry = content["settings_entry"].string(),
                .otherExtensionList = content["other_extension_list"].string(),
                .extensionBuild = content["extension_build"].string()};
    } catch (const ValueError &error) {
        throw std::runtime_error(manifest.string() + ": " + error.what());
    }
}

} // namespace sim
