#include "EntryLoading.h"

#include "SettingsLoader.hpp"

#include <exception>
#include <set>
#include <utility>

namespace sim {

namespace {
BundleLoader &loader() {
    static BundleLoader shared;
    return shared;
}
} // namespace

void setBundleLoader(BundleLoader next) { loader() = std::move(next); }

std::string loadExecutable(const std::string &devicePath) {
    static std::set<std::string> loaded;
    if (loaded.count(devicePath)) return "";
    if (!loader()) return "this process loads no bundles";
    try {
        loader()(devicePath);
    } catch (const std::exception &error) {
        return error.what();
    }
    loaded.insert(devicePath);
    return "";
}

} // namespace sim
