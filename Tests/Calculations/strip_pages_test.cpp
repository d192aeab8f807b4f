// Three fingers reach every application of the strip whole, page by page, and back; a regression leaves one
// that nobody who listens can find.
#include "Tweak/Core/Geometry/StripLayout.hpp"
#include "Tweak/Core/Geometry/StripPages.hpp"

#include <gtest/gtest.h>

#include <set>

namespace {

using namespace pendix;

struct Strip {
    StripExtent extent;
    std::vector<Rect> cells;
};

Strip strip(bool paging, int rows, int count, Real width) {
    const StripInput input{.icon = {60, 74}, .rows = rows, .paging = paging, .strip = {width, 110}};
    Strip result;
    for (int i = 0; i < count; ++i) result.cells.push_back(cellFrame(input, i));
    const Real content =
        paging ? static_cast<Real>(pageCount(count, rows)) * width : unpagedContentWidth(result.cells);
    result.extent = {0, width, scrollableWidth(content, width), result.cells.front().x, paging};
    return result;
}

std::set<size_t> seen(const Strip &strip) {
    std::set<size_t> result;
    for (size_t i = 0; i < strip.cells.size(); ++i)
        if (isSeen(strip.extent, strip.cells[i].x, strip.cells[i].width)) result.insert(i);
    return result;
}

TEST(StripPages, ReachEveryApplicationAndLeadBack) {
    for (bool paging : {false, true})
        for (Real width : {256, 300, 614})
            for (int rows = 1; rows <= 4; ++rows)
                for (int count = 1; count <= 13; ++count) {
                    Strip strip = ::strip(paging, rows, count, width);
                    std::set<size_t> reached;
                    const int pages = pageCount(count, rows);
                    for (int page = 1; page <= pages; ++page) {
                        SCOPED_TRACE(testing::Message() << paging << " " << width << " wide, " << rows
                                                        << " rows, " << count << ", page " << page);
                        EXPECT_EQ(stripPage(strip.extent), (StripPage{page, pages}));
                        const auto here = seen(strip);
                        EXPECT_LE(here.size(), static_cast<size_t>(rows));
                        reached.insert(here.begin(), here.end());
                        const Real next = nextPage(strip.extent);
                        EXPECT_EQ(next == strip.extent.offset, page == pages);
                        strip.extent.offset = next;
                    }
                    EXPECT_EQ(reached.size(), strip.cells.size());
                    for (int page = pages; page > 1; --page) {
                        EXPECT_GT(strip.extent.offset, 0);
                        strip.extent.offset = previousPage(strip.extent);
                    }
                    EXPECT_EQ(strip.extent.offset, 0);
                    EXPECT_EQ(previousPage(strip.extent), 0);
                }
}

} // namespace
