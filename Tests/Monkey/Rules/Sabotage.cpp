#include "Sabotage.hpp"

#include "Tools/Monkey/Watcher.hpp"

#include <algorithm>
#include <cstdlib>
#include <filesystem>

namespace sabotage {

namespace {

namespace fs = std::filesystem;
using sim::Object;

// A device's folder with the saboteur in it.
class Root {
public:
    Root() {
        std::string name = (fs::temp_directory_path() / "rules-XXXXXX").string();
        path_ = mkdtemp(name.data());
        fs::path libraries = path_ / "Library/MobileSubstrate/DynamicLibraries";
        fs::create_directories(libraries);
        fs::copy_file(SABOTEUR, libraries / "Saboteur.dylib");
        fs::copy_file(SABOTEUR_FILTER, libraries / "Saboteur.plist");
    }
    ~Root() { fs::remove_all(path_); }
    Root(const Root &) = delete;
    Root &operator=(const Root &) = delete;
    std::string path() const { return path_.string(); }

private:
    fs::path path_;
};

sim::DeviceSetup setup() {
    fs::path stage = STAGE;
    sim::Installation installation{.programs = PROGRAMS,
                                   .stageRoot = stage / "root",
                                   .platform = stage / "platform",
                                   .manifest = stage / "package.json",
                                   .page = stage / "page"};
    return {.installation = installation, .package = sim::readPackage(installation.manifest)};
}

} // namespace

Script findings(const Scene &scene, const char *act) {
    Root root;
    Object settings = scene.settings, boot = scene.boot;
    if (act) settings.insert({{"sabotage", act}, {"sabotage_at", scene.at}});
    boot.insert({{"root", root.path()}, {"settings", settings}});
    sim::LivePhone phone(setup(), boot);
    sim::Watcher watcher(phone);
    Script all = watcher.look("boot");
    for (const auto &call : scene.script) {
        phone.run(call);
        for (const auto &finding : watcher.look(call)) all.push_back(call + " → " + finding);
    }
    return all;
}

std::string textOf(const Script &lines) {
    std::string text;
    for (const auto &line : lines) text += line + "\n";
    return text;
}

void PrintTo(const Case &broken, std::ostream *out) {
    *out << (broken.sabotage ? broken.sabotage : broken.rule);
}

std::string caseName(const testing::TestParamInfo<Case> &info) {
    std::string name = (info.param.sabotage ? info.param.sabotage : info.param.rule) + std::string("_") +
                       std::to_string(info.index);
    std::ranges::replace(name, ' ', '_');
    return name;
}

void expectFound(const Case &broken) {
    const Script found = findings(broken.scene(), broken.sabotage);
    const std::string rule = std::string("→ ") + broken.rule + ": ";
    EXPECT_TRUE(std::ranges::any_of(found, [&](const std::string &finding) {
        return finding.find(rule) != std::string::npos;
    })) << textOf(found);
}

} // namespace sabotage
