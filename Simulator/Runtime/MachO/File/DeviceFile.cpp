#include "Runtime/MachO/DeviceLibrary.hpp"

#include "MachOFile.hpp"

#include <array>
#include <fstream>

namespace sim {

bool isDeviceLibrary(const std::string &path) {
    std::array<uint8_t, 4> start{};
    std::ifstream file(path, std::ios::binary);
    file.read(reinterpret_cast<char *>(start.data()), start.size());
    return file && macho::isMachO(start);
}

} // namespace sim
