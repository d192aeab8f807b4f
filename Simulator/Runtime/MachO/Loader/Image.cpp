#include "Image.hpp"

#include <stdexcept>
#include <sys/mman.h>

namespace sim {

Image::Image(const macho::File &file, const macho::Fixups &fixups) : size_(file.memorySize()) {
    void *memory = mmap(nullptr, size_, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED) throw std::runtime_error("no memory for a library");
    memory_ = static_cast<uint8_t *>(memory);
    for (const auto &segment : file.segments())
        if (segment.fileSize)
            memcpy(at(segment.address), file.at(segment.address, segment.fileSize).data(), segment.fileSize);
    for (uint64_t address : fixups.rebases)
        write(address, read<uint64_t>(address) + reinterpret_cast<uintptr_t>(memory_));
}

void Image::protect(const macho::File &file) const {
    mprotect(memory_, size_, PROT_NONE);
    for (const auto &segment : file.segments()) {
        int rights = PROT_READ | (segment.writable ? PROT_WRITE : 0) | (segment.executable ? PROT_EXEC : 0);
        if (segment.size && mprotect(at(segment.address), segment.size, rights) != 0)
            throw std::runtime_error("cannot protect " + segment.name);
    }
    __builtin___clear_cache(reinterpret_cast<char *>(memory_), reinterpret_cast<char *>(memory_ + size_));
}

} // namespace sim
