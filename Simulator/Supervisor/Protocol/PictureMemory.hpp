// Pictures from a simulated process to the supervisor: raw pixels in a file that both have open.
#pragma once

#include "Render/Bitmap.hpp"

#include <cstddef>
#include <span>
#include <vector>

namespace sim {

// Replaces the picture in the file. Throws std::system_error.
void writePicture(int descriptor, const render::Bitmap &picture);
// Throws std::system_error; std::runtime_error when no picture has been written.
render::Bitmap readPicture(int descriptor);

// A part of a picture, in pixels.
struct PictureArea {
    int x = 0, y = 0, width = 0, height = 0;
    bool operator==(const PictureArea &) const = default;
};

// The same file mapped into memory, for incremental updates. Not synchronised: the two sides take turns.
class PictureMemory {
public:
    // Does not take ownership of the descriptor.
    explicit PictureMemory(int descriptor) : descriptor_(descriptor) {}
    ~PictureMemory();
    PictureMemory(const PictureMemory &) = delete;
    PictureMemory &operator=(const PictureMemory &) = delete;

    // Puts `picture` into the file: all of it the first time and when it has another size than the one
    // before, else `changed` only. Returns what was written. Throws std::system_error.
    std::vector<PictureArea> update(const render::Bitmap &picture, std::span<const PictureArea> changed);

    // Copies `changed` from the file to `picture`; all of it when that has another size. Returns the areas in
    // which a pixel has become different. Throws std::system_error; std::runtime_error when the file holds no
    // such picture.
    std::vector<PictureArea> refresh(render::Bitmap &picture, std::span<const PictureArea> changed);

private:
    void map(size_t size);

    int descriptor_;
    std::byte *memory_ = nullptr;
    size_t size_ = 0;
};

} // namespace sim
