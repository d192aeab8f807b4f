#include "Symbols.hpp"

#include <algorithm>
#include <cstdlib>
#include <cxxabi.h>
#include <fstream>
#include <iterator>
#include <memory>
#include <sstream>

namespace sim::macho {

namespace {

// The line as it was where the file or the symbol is not known.
std::string named(const std::string &line) {
    constexpr std::string_view kMark = "frame ";
    size_t plus = line.rfind("+0x");
    if (!line.starts_with(kMark) || plus == std::string::npos) return line;
    std::string path = line.substr(kMark.size(), plus - kMark.size());
    std::ifstream stream(path, std::ios::binary);
    std::vector<uint8_t> bytes{std::istreambuf_iterator<char>(stream), {}};
    if (!isMachO(bytes)) return line;
    try {
        std::string name = symbolAt(File(bytes), strtoull(line.c_str() + plus + 1, nullptr, 16));
        return name.empty() ? line : name + " in " + path.substr(path.rfind('/') + 1);
    } catch (const Error &) {
        return line;
    }
}

} // namespace

std::string symbolAt(const File &file, uint64_t address) {
    auto after = std::ranges::upper_bound(file.symbols(), address, {}, &Symbol::address);
    if (after == file.symbols().begin()) return "";
    std::string name = std::prev(after)->name;
    if (name.starts_with('_')) name.erase(0, 1);
    int status = 0;
    std::unique_ptr<char, void (*)(void *)> readable(
        abi::__cxa_demangle(name.c_str(), nullptr, nullptr, &status), free);
    return readable ? readable.get() : name;
}

std::string nameFrames(const std::string &report) {
    std::istringstream lines(report);
    std::string result;
    for (std::string line; std::getline(lines, line);) result += named(line) + "\n";
    return result;
}

} // namespace sim::macho
