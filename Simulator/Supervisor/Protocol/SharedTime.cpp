#include "SharedTime.hpp"

#include <cerrno>
#include <sys/mman.h>
#include <system_error>
#include <unistd.h>

namespace sim {

int SharedTime::create() {
    int descriptor = memfd_create("time", MFD_CLOEXEC);
    if (descriptor < 0 || ftruncate(descriptor, sizeof(std::atomic<int64_t>)) != 0)
        throw std::system_error(errno, std::generic_category(), "shared memory");
    return descriptor;
}

SharedTime::SharedTime(int descriptor) {
    void *memory = mmap(nullptr, sizeof *cell_, PROT_READ | PROT_WRITE, MAP_SHARED, descriptor, 0);
    if (memory == MAP_FAILED) throw std::system_error(errno, std::generic_category(), "shared memory");
    cell_ = static_cast<std::atomic<int64_t> *>(memory);
}

SharedTime::~SharedTime() { munmap(cell_, sizeof *cell_); }

} // namespace sim
