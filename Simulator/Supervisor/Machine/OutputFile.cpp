#include "OutputFile.hpp"

#include <cerrno>
#include <cstring>
#include <fstream>
#include <stdexcept>
#include <system_error>

namespace sim {

namespace fs = std::filesystem;

void writeOutput(const fs::path &file, const std::string &bytes) {
    std::error_code problem;
    if (file.has_parent_path()) fs::create_directories(file.parent_path(), problem);
    if (problem)
        throw std::runtime_error("cannot make the folder " + file.parent_path().string() + ": " +
                                 problem.message());
    errno = 0;
    if (!(std::ofstream(file, std::ios::binary) << bytes).flush())
        throw std::runtime_error("cannot write " + file.string() +
                                 (errno ? ": " + std::string(strerror(errno)) : ""));
}

std::string pictureName(const std::string &name) {
    std::string ending = fs::path(name).extension().string();
    if (ending == ".png") return name.substr(0, name.size() - ending.size());
    for (const char *other : {".jpg", ".jpeg", ".gif", ".bmp", ".tiff", ".webp", ".pdf", ".JPG", ".PNG"})
        if (ending == other)
            throw std::runtime_error("pictures are PNG files: '" + name + "' would have to end in .png");
    return name;
}

} // namespace sim
