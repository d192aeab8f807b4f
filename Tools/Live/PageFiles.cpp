#include "PageFiles.hpp"

#include "Supervisor/Boot/Package.hpp"

namespace sim {

namespace {

const std::map<std::string, std::string> kTypes = {{".html", "text/html; charset=utf-8"},
                                                   {".css", "text/css; charset=utf-8"},
                                                   {".js", "text/javascript; charset=utf-8"},
                                                   {".svg", "image/svg+xml"}};

} // namespace

std::map<std::string, PageFile> readPageFiles(const std::filesystem::path &folder) {
    std::map<std::string, PageFile> files;
    PageFile index{kTypes.at(".html"), readFile(folder / "index.html")};
    for (const auto &entry : std::filesystem::directory_iterator(folder)) {
        auto type = kTypes.find(entry.path().extension());
        if (type == kTypes.end()) continue;
        files.emplace("/" + entry.path().filename().string(), PageFile{type->second, readFile(entry.path())});
    }
    files.emplace("/", std::move(index));
    return files;
}

} // namespace sim
