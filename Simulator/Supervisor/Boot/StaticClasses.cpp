#include "StaticClasses.hpp"

#include "Runtime/MachO/File/Metadata.hpp"

#include <algorithm>
#include <cstring>
#include <elf.h>
#include <stdexcept>
#include <string_view>

namespace sim {

namespace {

// The `index`-th record of a table at `offset`; checks that it lies within the file.
template <typename Record>
Record record(const std::string &file, uint64_t offset, uint64_t index) {
    uint64_t at = offset + index * sizeof(Record);
    if (at > file.size() || file.size() - at < sizeof(Record))
        throw std::runtime_error("the library is cut short");
    Record result;
    memcpy(&result, file.data() + at, sizeof result);
    return result;
}

std::string_view text(const std::string &file, uint64_t at) {
    if (at >= file.size()) throw std::runtime_error("the library is cut short");
    return file.data() + at;
}

} // namespace

std::vector<std::string> staticClasses(const std::string &file) {
    std::span bytes(reinterpret_cast<const uint8_t *>(file.data()), file.size());
    if (macho::isMachO(bytes)) return macho::foreignClasses(macho::readFixups(macho::File(bytes)));
    constexpr std::string_view kPrefix = "__objc_class_name_";
    auto header = record<Elf64_Ehdr>(file, 0, 0);
    if (memcmp(header.e_ident, ELFMAG, SELFMAG) != 0 || header.e_ident[EI_CLASS] != ELFCLASS64)
        throw std::runtime_error("not a 64-bit ELF library");
    std::vector<std::string> result;
    for (unsigned i = 0; i < header.e_shnum; ++i) {
        auto section = record<Elf64_Shdr>(file, header.e_shoff, i);
        if (section.sh_type != SHT_DYNSYM) continue;
        auto names = record<Elf64_Shdr>(file, header.e_shoff, section.sh_link);
        for (uint64_t j = 0; j < section.sh_size / sizeof(Elf64_Sym); ++j) {
            auto symbol = record<Elf64_Sym>(file, section.sh_offset, j);
            if (symbol.st_shndx != SHN_UNDEF) continue;
            auto name = text(file, names.sh_offset + symbol.st_name);
            if (name.starts_with(kPrefix)) result.emplace_back(name.substr(kPrefix.size()));
        }
    }
    std::ranges::sort(result);
    return result;
}

} // namespace sim
