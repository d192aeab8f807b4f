#include "PictureMemory.hpp"

#include <cerrno>
#include <cstddef>
#include <stdexcept>
#include <sys/types.h>
#include <system_error>
#include <unistd.h>

namespace sim {

namespace {

struct Header {
    int32_t width = 0, height = 0;
    double scale = 1;
};

// Moves all the bytes through `move`, which handles any part of them.
void transfer(auto *bytes, size_t size, auto &&move) {
    for (size_t done = 0; done < size;) {
        ssize_t count = move(bytes + done, size - done, static_cast<off_t>(done));
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) throw std::system_error(errno, std::generic_category(), "picture");
        if (count == 0) throw std::runtime_error("the picture is not complete");
        done += static_cast<size_t>(count);
    }
}

void write(int descriptor, const void *data, size_t size, off_t start) {
    transfer(static_cast<const std::byte *>(data), size, [=](const std::byte *from, size_t length, off_t at) {
        return pwrite(descriptor, from, length, start + at);
    });
}

void read(int descriptor, void *data, size_t size, off_t start) {
    transfer(static_cast<std::byte *>(data), size, [=](std::byte *to, size_t length, off_t at) {
        return pread(descriptor, to, length, start + at);
    });
}

} // namespace

void writePicture(int descriptor, const render::Bitmap &picture) {
    Header header{picture.width, picture.height, picture.scale};
    write(descriptor, &header, sizeof header, 0);
    write(descriptor, picture.pixels.data(), picture.pixels.size() * sizeof(uint32_t), sizeof header);
}

render::Bitmap readPicture(int descriptor) {
    Header header;
    read(descriptor, &header, sizeof header, 0);
    render::Bitmap picture(header.width, header.height, header.scale);
    read(descriptor, picture.pixels.data(), picture.pixels.size() * sizeof(uint32_t), sizeof header);
    return picture;
}

} // namespace sim
