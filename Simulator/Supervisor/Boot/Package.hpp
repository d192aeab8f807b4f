// The package that is simulated, as the build describes it: everything that the supervisor knows of it.
#pragma once

#include <filesystem>
#include <string>

namespace sim {

// Where the parts of a build lie.
struct Installation {
    std::filesystem::path programs;  // the folder of the simulated processes' programs
    std::filesystem::path stageRoot; // the installed files, laid out as on the device
    std::filesystem::path platform;  // pictures of the simulated platform, applications.json
    std::filesystem::path manifest;  // package.json
    std::filesystem::path page;      // the files of the live page
    std::filesystem::path trace;     // the files that a trace is made of
    std::filesystem::path scripts;   // what the build made for scripts to load
    std::filesystem::path settings;  // settings.json: the extension's settings, for tools
};

// Beside the running program.
Installation findInstallation();

struct Package {
    std::string library;            // path on the device
    std::string settingsFile;       // path on the device
    std::string statusBarItem;      // identifier
    std::string activatorListener;  // name
    std::string settingsEntry;      // of its page: the entry's file, without the extension, or its bundle
    std::string otherExtensionList; // the file by which the other extension is known; path on the device
    std::string extensionBuild; // where the build of somebody's extension lies in the folder of its sources
};

// Throws std::runtime_error naming the file and what is wrong with it.
Package readPackage(const std::filesystem::path &manifest);

// The whole file. Throws std::runtime_error naming the file.
std::string readFile(const std::filesystem::path &path);

} // namespace sim
