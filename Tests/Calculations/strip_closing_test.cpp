// When an application leaves the strip the others close up without gap, overlap or change of order, and the
// content is as wide as what is left; a regression shows as an icon at another's place or a page that cannot
// be reached.
#include "Tweak/Core/Geometry/StripClosing.hpp"
#include "Tweak/Core/Geometry/StripLayout.hpp"

#include <gtest/gtest.h>

#include <vector>

namespace {

using namespace pendix;

StripInput strip(bool paging, int rows) {
    return {.icon = {60, 74}, .rows = rows, .paging = paging, .strip = {256, paging ? 120.0f : 110.0f}};
}

std::vector<Rect> cells(const StripInput &input, int count) {
    std::vector<Rect> result;
    for (int i = 0; i < count; ++i) result.push_back(cellFrame(input, i));
    return result;
}

// What is left of `frames` after the one at `index` went.
std::vector<Rect> close(std::vector<Rect> frames, int index, const StripInput &input) {
    Rect removed = frames[static_cast<size_t>(index)];
    frames.erase(frames.begin() + index);
    return framesAfterClosing(frames, removed, index, input.strip.width, input.rows);
}

TEST(StripClosing, LeavesNoGapWhoeverGoes) {
    for (bool paging : {false, true})
        for (int rows : {1, 2, 3, 4})
            for (int count = 1; count <= 9; ++count)
                for (int index = 0; index < count; ++index) {
                    StripInput input = strip(paging, rows);
                    EXPECT_EQ(close(cells(input, count), index, input), cells(input, count - 1))
                        << rows << " rows, " << index << " of " << count;
                }
}

TEST(StripClosing, EndsRightHoweverManyGoOneByOne) {
    // 3, 0, 2, 0 of five, four …: the indices of what goes.
    StripInput input = strip(true, 3);
    std::vector<Rect> frames = cells(input, 7);
    for (int index : {3, 0, 4, 2, 0, 1, 0}) frames = close(frames, index, input);
    EXPECT_TRUE(frames.empty());
}

// Two that go at once: the second is taken off while the first one's neighbours are still moving, so that its
// own frame is the one it is moving to.
TEST(StripClosing, SecondGoesBeforeTheFirstHasClosedUp) {
    StripInput input = strip(false, 3);
    std::vector<Rect> frames = close(cells(input, 4), 0, input);
    EXPECT_EQ(close(frames, 1, input), cells(input, 2));
}

TEST(StripClosing, KeepsRemovedPlaceWhereItWasDraggedFrom) {
    // The one that follows takes the place; those before it stay.
    std::vector<Rect> left = {{19, 18, 60, 79}, {177, 18, 60, 79}};
    std::vector<Rect> wanted = {{19, 18, 60, 79}, {98, 18, 60, 79}};
    EXPECT_EQ(framesAfterClosing(left, {98, 18, 60, 79}, 1, 256, 3), wanted);
    // One beyond the removed place, with none before it and another index: a share of the strip.
    EXPECT_EQ(framesAfterClosing({{177, 18, 60, 79}}, {98, 18, 60, 79}, 1, 256, 3),
              (std::vector<Rect>{{64, 18, 60, 79}}));
    EXPECT_TRUE(framesAfterClosing({}, {19, 18, 60, 79}, 0, 256, 3).empty());
}

TEST(StripClosing, ContentIsAsWideAsWhatIsLeft) {
    struct {
        bool paging;
        int rows, count;
        Real width;
    } const cases[] = {
        {false, 3, 0, 257}, {false, 3, 3, 257}, {false, 3, 4, 335}, {false, 3, 6, 493},
        {true, 3, 0, 257},  {true, 3, 1, 257},  {true, 3, 3, 257},  {true, 3, 4, 512},
        {true, 3, 6, 512},  {true, 3, 7, 768},  {true, 1, 4, 1024}, {true, 2, 3, 512},
    };
    for (const auto &c : cases) {
        StripInput input = strip(c.paging, c.rows);
        EXPECT_NEAR(contentWidthAfterClosing(cells(input, c.count), c.paging, c.rows, 256), c.width, 1e-3)
            << (c.paging ? "paged, " : "") << c.rows << " rows, " << c.count;
    }
}

} // namespace
