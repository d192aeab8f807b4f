// What a device's folder is given by one boot after another.
#include "Supervisor/Machine/SandboxFolder.hpp"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

namespace {

namespace fs = std::filesystem;

std::string textOf(const fs::path &path) {
    std::ifstream file(path);
    return {std::istreambuf_iterator<char>(file), {}};
}

TEST(SandboxFolder, NeverWritesThroughALinkOfAnEarlierBoot) {
    sim::SandboxFolder folder("");
    const fs::path built = folder.at("/built"), linked = folder.at("/linked"), whole = folder.at("/whole");
    fs::create_directories(linked);
    fs::create_directories(whole);
    std::ofstream(built) << "of the build";
    fs::create_symlink(built, linked / "library");
    std::ofstream(whole / "library") << "of a package";
    sim::SandboxFolder device(folder.at("/device").string());
    device.install(linked, {});
    EXPECT_EQ(textOf(device.at("/library")), "of the build");
    device.install(whole, {});
    EXPECT_EQ(textOf(device.at("/library")), "of a package");
    EXPECT_EQ(textOf(built), "of the build");
}

} // namespace
