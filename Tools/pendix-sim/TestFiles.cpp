#include "TestFiles.hpp"

#include <algorithm>
#include <set>
#include <stdexcept>
#include <string>

namespace sim {

namespace {

namespace fs = std::filesystem;

std::vector<fs::path> scriptsIn(const fs::path &folder) {
    std::vector<fs::path> scripts;
    for (const auto &entry : fs::directory_iterator(folder))
        if (entry.is_regular_file() && entry.path().extension() == ".lua") scripts.push_back(entry.path());
    if (scripts.empty()) throw std::runtime_error("there is no .lua file in " + folder.string());
    std::ranges::sort(scripts);
    return scripts;
}

} // namespace

std::vector<TestFile> testFiles(const std::vector<fs::path> &paths, const fs::path &out) {
    std::vector<TestFile> files;
    std::set<fs::path> known, folders;
    for (const auto &path : paths) {
        for (const auto &script : fs::is_directory(path) ? scriptsIn(path) : std::vector{path}) {
            if (!known.insert(fs::canonical(script)).second) continue;
            std::string name = script.stem().string(), folder = name;
            for (int i = 2; !folders.insert(folder).second; ++i) folder = name + "-" + std::to_string(i);
            files.push_back({script, out / folder});
        }
    }
    return files;
}

} // namespace sim
