// A device's files: what of the package is laid out, what is left out, and that nothing outside its folder
// changes.
#include "Supervisor/Boot/Package.hpp"
#include "Supervisor/Machine/SandboxFolder.hpp"
#include "Supervisor/Machine/SettingsFile.hpp"

#include <gtest/gtest.h>

#include <fstream>

namespace {

namespace fs = std::filesystem;
using sim::Array;
using sim::Object;

void write(const fs::path &path, const std::string &text) {
    fs::create_directories(path.parent_path());
    std::ofstream(path) << text;
}

class DeviceFiles : public testing::Test {
protected:
    DeviceFiles() {
        write(stage / "Library/Pictures/a.png", "a");
        write(stage / "Library/Pictures/b.png", "b");
        write(stage / "Library/Texts/en.plist", "en");
        write(outside.path() / "library", "code");
        fs::create_symlink(outside.path() / "library", stage / "Library/library");
        fs::create_symlink("../outside-library", stage / "relative");
        write(stage.parent_path() / "outside-library", "more code");
    }

    sim::SandboxFolder outside{""};
    fs::path stage = outside.path() / "tree" / "root";
};

TEST_F(DeviceFiles, InstalledFilesAreCopiesAndLinksStayLinks) {
    sim::SandboxFolder device("");
    EXPECT_TRUE(device.install(stage, {}).empty());
    write(device.at("/Library/Pictures/a.png"), "changed");
    EXPECT_EQ(sim::readFile(stage / "Library/Pictures/a.png"), "a");
    EXPECT_TRUE(fs::is_symlink(device.at("/Library/library")));
    EXPECT_EQ(sim::readFile(device.at("/Library/library")), "code");
    EXPECT_EQ(sim::readFile(device.at("/relative")), "more code")
        << "a link that leads out still leads there";
    EXPECT_TRUE(fs::is_directory(device.at("/var/mobile/Library/Preferences")));
}

TEST_F(DeviceFiles, MissingFilesAreLeftOut) {
    sim::SandboxFolder device("");
    auto unknown = device.install(stage, {"/Library/Pictures/b.png", "/Library/Texts", "/Library/c.png"});
    EXPECT_EQ(unknown, std::vector<std::string>{"/Library/c.png"});
    EXPECT_TRUE(fs::exists(device.at("/Library/Pictures/a.png")));
    EXPECT_FALSE(fs::exists(device.at("/Library/Pictures/b.png")));
    EXPECT_FALSE(fs::exists(device.at("/Library/Texts")));
}

TEST_F(DeviceFiles, OnlyATemporaryFolderGoesAway) {
    fs::path temporary, kept = outside.path() / "kept";
    {
        sim::SandboxFolder first(""), second(kept.string());
        temporary = first.path();
        write(second.at("/var/x"), "x");
        EXPECT_TRUE(fs::exists(temporary));
    }
    EXPECT_FALSE(fs::exists(temporary));
    sim::SandboxFolder again(kept.string());
    again.install(stage, {});
    EXPECT_EQ(sim::readFile(again.at("/var/x")), "x") << "a kept folder keeps what the device wrote";
}

TEST_F(DeviceFiles, SettingsKeepTheirOtherKeys) {
    sim::SettingsFile file(outside.path() / "var/settings.plist");
    std::string problem;
    EXPECT_FALSE(file.read(&problem));
    EXPECT_EQ(problem, "") << "an absent file is no problem";
    file.change({{"enable", true}, {"amount", 4}, {"list", Array{1, 2.5, "x"}}});
    file.change({{"amount", 5}, {"enable", nullptr}});
    EXPECT_EQ(file.read(&problem), sim::Value(Object{{"amount", 5}, {"list", Array{1, 2.5, "x"}}}));

    for (const char *broken : {"no property list <", "(1, 2)", ""}) {
        file.writeText(broken);
        EXPECT_FALSE(file.read(&problem)) << broken;
        EXPECT_NE(problem, "") << broken;
        file.change({{"enable", true}});
        EXPECT_EQ(file.read(&problem), sim::Value(Object{{"enable", true}}))
            << "starts afresh after: " << broken;
    }
    file.remove();
    EXPECT_FALSE(file.read(&problem));
}

} // namespace
