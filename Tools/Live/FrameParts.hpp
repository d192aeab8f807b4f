// What of a device's screen a viewer has not seen yet, and how it travels to the page.
#pragma once

#include "Supervisor/Protocol/PictureMemory.hpp"

#include <string>
#include <vector>

namespace sim {

// The screen in squares; however much changes before a viewer takes it, no more than one screen waits.
class UnseenParts {
public:
    void add(const PictureArea &area);
    // Everything, on a screen of that size.
    void reset(int width, int height);
    bool empty() const { return count_ == 0; }
    // Rows of squares as areas, which cover all that was added since; afterwards there is nothing.
    std::vector<PictureArea> take();

private:
    static constexpr int kSide = 96; // the renderer repaints squares of this size

    int width_ = 0, height_ = 0, columns_ = 0, rows_ = 0;
    std::vector<bool> squares_;
    int count_ = 0;
};

// A frame as the page reads it, in words of 32 bits, least byte first: number of the frame, width and height
// of the screen, number of areas; for each area x, y, width, height; then the areas' pixels, row by row, four
// bytes each: red, green, blue, alpha.
std::string encodeFrame(const render::Bitmap &screen, const std::vector<PictureArea> &areas, uint32_t number);

// The same frame in fewer bytes: the areas and their pixels as a raw deflate stream, which the highest bit of
// the number of areas tells.
std::string packFrame(const std::string &frame);

} // namespace sim
