// A device's files in a temporary folder, for as long as the object lives.
#pragma once

#include "Render/Bitmap.hpp"
#include "Runtime/Files/Sandbox.hpp"

#include <filesystem>
#include <fstream>
#include <string>

namespace harness {

class Sandbox {
public:
    Sandbox() {
        std::string pattern = std::filesystem::temp_directory_path() / "springboard-XXXXXX";
        root_ = mkdtemp(pattern.data());
        sim::setSandboxRoot(root_);
    }
    ~Sandbox() { std::filesystem::remove_all(root_); }
    Sandbox(const Sandbox &) = delete;
    Sandbox &operator=(const Sandbox &) = delete;

    // Where a path of the device is on this machine.
    std::filesystem::path path(const std::string &devicePath) const { return root_ + devicePath; }

    // A PNG file of one colour; the size is in pixels, the colour premultiplied.
    void putImage(const std::string &devicePath, int width, int height, uint32_t color) const {
        render::Bitmap bitmap(width, height);
        for (auto &pixel : bitmap.pixels) pixel = color;
        std::filesystem::create_directories(path(devicePath).parent_path());
        std::ofstream(path(devicePath), std::ios::binary) << render::encodePng(bitmap);
    }

private:
    std::string root_;
};

} // namespace harness
