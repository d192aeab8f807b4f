#include "ExtensionLoader.h"

#include "Requests.h"
#include "Runtime/Files/Sandbox.hpp"
#include "Runtime/MachO/DeviceLibrary.hpp"
#include "Runtime/Objc/ClassLayout.hpp"
#include "Runtime/Values/PropertyList.hpp"

#include <algorithm>
#include <dlfcn.h>
#include <filesystem>
#include <vector>

namespace sim {

namespace {

namespace fs = std::filesystem;

constexpr const char *kFolder = "/Library/MobileSubstrate/DynamicLibraries";

std::vector<fs::path> filters() {
    std::vector<fs::path> result;
    for (const auto &entry : fs::directory_iterator(resolvePath(kFolder)))
        if (entry.path().extension() == ".plist") result.push_back(entry.path());
    std::sort(result.begin(), result.end());
    return result;
}

bool holds(const Value &list, const std::string &name) {
    return list.isArray() && std::count(list.array().begin(), list.array().end(), Value(name));
}

// A library is loaded when each kind of name that its filter gives holds the process's.
bool selects(const Value &filter, const std::string &bundle, const std::string &executable) {
    bool byBundle = !filter.has("Bundles") || holds(filter["Bundles"], bundle);
    bool byExecutable = !filter.has("Executables") || holds(filter["Executables"], executable);
    return byBundle && byExecutable;
}

void load(const fs::path &library) {
    // By its own name: backtraces and debuggers show it.
    std::string path = fs::canonical(library);
    if (isDeviceLibrary(path)) try {
            return loadDeviceLibrary(path);
        } catch (const std::runtime_error &error) {
            throw BadRequest("cannot load " + library.filename().string() + ": " + error.what());
        }
    void *handle = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (!handle) throw BadRequest("cannot load " + library.filename().string() + ": " + dlerror());
    for (const auto &problem : brokenLayouts(classesOf(path)))
        throw BadRequest(library.filename().string() + " does not fit the platform: " + problem);
}

} // namespace

void loadLibrary(const std::string &devicePath) {
    fs::path library = resolvePath(devicePath);
    if (!fs::exists(library)) throw BadRequest("there is no " + devicePath);
    load(library);
}

void loadExtensions(const std::string &bundle, const std::string &executable) {
    for (const auto &path : filters()) {
        auto bytes = readWholeFile(path);
        std::string error;
        auto content = bytes ? parsePropertyList(*bytes, &error) : std::nullopt;
        if (!content) throw BadRequest("cannot read " + path.filename().string() + ": " + error);
        fs::path library = fs::path(path).replace_extension(".dylib");
        if (selects((*content)["Filter"], bundle, executable) && fs::exists(library)) load(library);
    }
}

} // namespace sim
