#include "SandboxFolder.hpp"

#include <cstdlib>
#include <set>
#include <stdexcept>
#include <sys/statvfs.h>
#include <unistd.h>

namespace sim {

namespace fs = std::filesystem;

namespace {

constexpr const char *kStandardFolders[] = {"/Applications",
                                            "/Library/MobileSubstrate/DynamicLibraries",
                                            "/System/Library/Frameworks/UIKit.framework",
                                            "/var/lib/dpkg/info",
                                            "/var/mobile/Documents",
                                            "/var/mobile/Library/Caches",
                                            "/var/mobile/Library/Preferences",
                                            "/var/root"};

// Where devices live for a while: in memory where the machine has room for that, for the hundred files of a
// device cost a disk more than all the rest of a boot. TMPDIR decides otherwise.
fs::path placeForDevices() {
    constexpr const char *kMemory = "/dev/shm";
    constexpr uint64_t kRoom = 256 << 20;
    struct statvfs system {};
    // Devices load libraries from their files.
    bool memory = !getenv("TMPDIR") && access(kMemory, W_OK | X_OK) == 0 && statvfs(kMemory, &system) == 0 &&
                  !(system.f_flag & ST_NOEXEC) && uint64_t{system.f_bavail} * system.f_frsize >= kRoom;
    return memory ? fs::path(kMemory) : fs::temp_directory_path();
}

fs::path temporaryFolder() {
    std::string name = (placeForDevices() / "pendix-sim-XXXXXX").string();
    if (!mkdtemp(name.data())) throw std::runtime_error("cannot make a folder like " + name);
    return fs::canonical(name);
}

// A link that leads out of the copied tree goes on to where it led.
void copyLink(const fs::path &source, const fs::path &target) {
    fs::path destination = fs::read_symlink(source);
    if (destination.is_relative()) destination = fs::weakly_canonical(source.parent_path() / destination);
    fs::remove(target);
    fs::create_symlink(destination, target);
}

} // namespace

SandboxFolder::SandboxFolder(const std::string &kept) : temporary_(kept.empty()) {
    if (temporary_) {
        path_ = temporaryFolder();
    } else {
        fs::create_directories(kept);
        path_ = fs::canonical(kept);
    }
}

SandboxFolder::~SandboxFolder() {
    std::error_code ignored;
    if (temporary_) fs::remove_all(path_, ignored);
}

fs::path SandboxFolder::at(std::string_view devicePath) const {
    return path_ / fs::path(devicePath).relative_path();
}

std::vector<std::string> SandboxFolder::install(const fs::path &stage,
                                                const std::vector<std::string> &missing) {
    for (const char *folder : kStandardFolders) fs::create_directories(at(folder));
    std::set<std::string> absent(missing.begin(), missing.end());
    std::set<std::string> left;
    for (auto entry = fs::recursive_directory_iterator(stage); entry != fs::recursive_directory_iterator();
         ++entry) {
        std::string devicePath = "/" + entry->path().lexically_relative(stage).string();
        if (absent.contains(devicePath)) {
            left.insert(devicePath);
            entry.disable_recursion_pending();
        } else if (entry->is_symlink()) {
            copyLink(entry->path(), at(devicePath));
        } else if (entry->is_directory()) {
            fs::create_directories(at(devicePath));
        } else {
            // A link that another boot left in a kept folder would be written through.
            fs::remove(at(devicePath));
            fs::copy_file(entry->path(), at(devicePath));
        }
    }
    std::vector<std::string> unknown;
    for (const auto &path : absent)
        if (!left.contains(path)) unknown.push_back(path);
    return unknown;
}

} // namespace sim
