// The folder that stands for a device's file system.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace sim {

class SandboxFolder {
public:
    // Of that path, and kept; or a temporary one, which is removed at the end. Throws std::runtime_error.
    explicit SandboxFolder(const std::string &kept);
    ~SandboxFolder();
    SandboxFolder(const SandboxFolder &) = delete;
    SandboxFolder &operator=(const SandboxFolder &) = delete;

    // Absolute.
    const std::filesystem::path &path() const { return path_; }
    // Where a file of the device lies.
    std::filesystem::path at(std::string_view devicePath) const;

    // Copies the installed files from `stage`, leaving out `missing` (files, or folders with all they hold),
    // and makes the folders that every device has. A symbolic link stays one. Returns those of `missing` that
    // there are not.
    std::vector<std::string> install(const std::filesystem::path &stage,
                                     const std::vector<std::string> &missing);

private:
    std::filesystem::path path_;
    bool temporary_;
};

} // namespace sim
