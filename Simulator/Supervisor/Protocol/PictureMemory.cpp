#include "PictureMemory.hpp"

#include <cerrno>
#include <cstring>
#include <stdexcept>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <system_error>
#include <unistd.h>

namespace sim {

namespace {

struct Header {
    int32_t width = 0, height = 0;
    double scale = 1;

    bool fits(const render::Bitmap &picture) const {
        return width == picture.width && height == picture.height && scale == picture.scale;
    }
    size_t fileSize() const {
        return sizeof(Header) + static_cast<size_t>(width) * static_cast<size_t>(height) * sizeof(uint32_t);
    }
};

[[noreturn]] void fail() { throw std::system_error(errno, std::generic_category(), "picture"); }

size_t sizeOf(int descriptor) {
    struct stat status {};
    if (fstat(descriptor, &status) != 0) fail();
    return static_cast<size_t>(status.st_size);
}

// Calls `visit` with the place of each of the area's rows and the bytes that it takes.
void forEachRow(const PictureArea &area, int pictureWidth, auto &&visit) {
    for (int y = area.y; y < area.y + area.height; ++y)
        visit(static_cast<size_t>(y) * static_cast<size_t>(pictureWidth) + static_cast<size_t>(area.x),
              static_cast<size_t>(area.width) * sizeof(uint32_t));
}

void checkInside(const PictureArea &area, const render::Bitmap &picture) {
    bool inside = area.x >= 0 && area.y >= 0 && area.width >= 0 && area.height >= 0 &&
                  area.width <= picture.width - area.x && area.height <= picture.height - area.y;
    if (!inside) throw std::runtime_error("a part that the picture does not have");
}

// Moves all the bytes through `move`, which handles any part of them.
void transfer(auto *bytes, size_t size, auto &&move) {
    for (size_t done = 0; done < size;) {
        ssize_t count = move(bytes + done, size - done, static_cast<off_t>(done));
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) fail();
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

PictureMemory::~PictureMemory() {
    if (memory_) munmap(memory_, size_);
}

void PictureMemory::map(size_t size) {
    if (size <= size_) return;
    if (memory_) munmap(memory_, size_);
    memory_ = nullptr;
    size_ = 0;
    void *memory = mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_SHARED, descriptor_, 0);
    if (memory == MAP_FAILED) fail();
    memory_ = static_cast<std::byte *>(memory);
    size_ = size;
}

std::vector<PictureArea> PictureMemory::update(const render::Bitmap &picture,
                                               std::span<const PictureArea> changed) {
    Header header{picture.width, picture.height, picture.scale}, before;
    if (sizeOf(descriptor_) < header.fileSize() &&
        ftruncate(descriptor_, static_cast<off_t>(header.fileSize())) != 0)
        fail();
    bool first = memory_ == nullptr;
    map(header.fileSize());
    std::memcpy(&before, memory_, sizeof before);
    std::vector<PictureArea> areas(changed.begin(), changed.end());
    if (first || !before.fits(picture)) areas = {{0, 0, picture.width, picture.height}};
    std::memcpy(memory_, &header, sizeof header);
    std::byte *pixels = memory_ + sizeof header;
    for (const auto &area : areas) {
        checkInside(area, picture);
        forEachRow(area, picture.width, [&](size_t at, size_t bytes) {
            std::memcpy(pixels + at * sizeof(uint32_t), &picture.pixels[at], bytes);
        });
    }
    return areas;
}

std::vector<PictureArea> PictureMemory::refresh(render::Bitmap &picture,
                                                std::span<const PictureArea> changed) {
    if (sizeOf(descriptor_) < sizeof(Header)) throw std::runtime_error("the picture is not complete");
    map(sizeof(Header));
    Header header;
    std::memcpy(&header, memory_, sizeof header);
    if (sizeOf(descriptor_) < header.fileSize()) throw std::runtime_error("the picture is not complete");
    map(header.fileSize());
    std::vector<PictureArea> areas(changed.begin(), changed.end());
    bool anew = !header.fits(picture);
    if (anew) {
        picture = render::Bitmap(header.width, header.height, header.scale);
        areas = {{0, 0, header.width, header.height}};
    }
    const std::byte *pixels = memory_ + sizeof header;
    std::erase_if(areas, [&](const PictureArea &area) {
        checkInside(area, picture);
        bool same = !anew;
        forEachRow(area, picture.width, [&](size_t at, size_t bytes) {
            const std::byte *row = pixels + at * sizeof(uint32_t);
            if (same && std::memcmp(&picture.pixels[at], row, bytes) == 0) return;
            same = false;
            std::memcpy(&picture.pixels[at], row, bytes);
        });
        return same;
    });
    return areas;
}

} // namespace sim
