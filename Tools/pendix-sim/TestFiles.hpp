// The scripts that a run of tests consists of.
#pragma once

#include <filesystem>
#include <vector>

namespace sim {

struct TestFile {
    std::filesystem::path script;
    std::filesystem::path pictures; // a folder of its own
};

// Those that the paths name, each once: files, and of a folder the NAME.lua in it by name. Pictures go to
// folders of the scripts' names in `out`. Throws std::runtime_error for a folder without any.
std::vector<TestFile> testFiles(const std::vector<std::filesystem::path> &paths,
                                const std::filesystem::path &out);

} // namespace sim
