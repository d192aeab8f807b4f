#include "TracePage.hpp"

#include "Supervisor/Boot/Package.hpp"
#include "Supervisor/Machine/OutputFile.hpp"

#include <stdexcept>
#include <string_view>

namespace sim {

namespace {

// An element of index.html that names a file, and the one that holds its content instead.
struct Reference {
    std::string start, end, opening, closing;
};

const Reference kReferences[] = {{"<link rel=\"stylesheet\" href=\"", "\">", "<style>\n", "</style>"},
                                 {"<script src=\"", "\"></script>", "<script>\n", "</script>"}};

constexpr std::string_view kData = "<script type=\"application/json\" id=\"trace\">[]";

std::string withFiles(std::string page, const std::filesystem::path &folder) {
    for (const auto &reference : kReferences) {
        for (size_t at; (at = page.find(reference.start)) != page.npos;) {
            size_t name = at + reference.start.size(), end = page.find(reference.end, name);
            std::string content = readFile(folder / page.substr(name, end - name));
            page.replace(at, end + reference.end.size() - at,
                         reference.opening + content + reference.closing);
        }
    }
    return page;
}

} // namespace

void writeTracePage(const std::filesystem::path &file, const std::filesystem::path &folder,
                    const std::vector<std::string> &traces) {
    std::string page = withFiles(readFile(folder / "index.html"), folder), list;
    for (const auto &trace : traces) list += (list.empty() ? "" : ",\n") + trace;
    size_t data = page.find(kData);
    if (data == page.npos) throw std::runtime_error("index.html has no place for a trace");
    page.insert(data + kData.size() - 1, list);
    writeOutput(file, page);
}

} // namespace sim
