#include "LibraryVariables.hpp"

#include "Runtime/MachO/DeviceLibrary.hpp"

#include <elf.h>
#include <fstream>
#include <link.h>
#include <map>
#include <set>
#include <string_view>
#include <vector>

namespace sim {

namespace {

using Symbols = std::map<std::string, void *, std::less<>>;

bool isSystems(std::string_view path) {
    return path.empty() || path.starts_with("/lib") || path.starts_with("/usr/") ||
           path.starts_with("linux-");
}

std::vector<char> bytesOf(const std::string &path) {
    std::ifstream file(path, std::ios::binary | std::ios::ate);
    if (!file) return {};
    std::vector<char> bytes(static_cast<size_t>(file.tellg()));
    file.seekg(0).read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return bytes;
}

// The data objects of the file's full symbol table, which a stripped file lacks.
void addSymbols(const std::string &path, uintptr_t base, Symbols &symbols) {
    std::vector<char> bytes = bytesOf(path);
    if (bytes.size() < sizeof(Elf64_Ehdr)) return;
    const auto *header = reinterpret_cast<const Elf64_Ehdr *>(bytes.data());
    const auto *sections = reinterpret_cast<const Elf64_Shdr *>(bytes.data() + header->e_shoff);
    for (int i = 0; i < header->e_shnum; ++i) {
        if (sections[i].sh_type != SHT_SYMTAB) continue;
        const auto *entries = reinterpret_cast<const Elf64_Sym *>(bytes.data() + sections[i].sh_offset);
        const char *names = bytes.data() + sections[sections[i].sh_link].sh_offset;
        for (size_t k = 0; k < sections[i].sh_size / sizeof(Elf64_Sym); ++k)
            if (ELF64_ST_TYPE(entries[k].st_info) == STT_OBJECT && entries[k].st_shndx != SHN_UNDEF)
                symbols.emplace(names + entries[k].st_name,
                                reinterpret_cast<void *>(base + entries[k].st_value));
    }
}

struct Table {
    std::set<std::string> read;
    Symbols symbols;
};

int readLibrary(dl_phdr_info *info, size_t, void *context) {
    auto &table = *static_cast<Table *>(context);
    std::string path = info->dlpi_name;
    if (!isSystems(path) && table.read.insert(path).second)
        addSymbols(path, static_cast<uintptr_t>(info->dlpi_addr), table.symbols);
    return 0;
}

} // namespace

void *libraryVariable(const std::string &symbol) {
    if (void *place = deviceSymbol(symbol)) return place;
    static Table table;
    auto found = table.symbols.find(symbol);
    if (found == table.symbols.end()) {
        dl_iterate_phdr(readLibrary, &table);
        found = table.symbols.find(symbol);
    }
    return found == table.symbols.end() ? nullptr : found->second;
}

} // namespace sim
