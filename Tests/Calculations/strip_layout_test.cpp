// Applications stand evenly on the strip of every screen, paged or not, and the page dots below one another's
// rule. The numbers follow from icons of 60 x 74 on phones and 76 x 93 on tablets, and a panel of eight
// tenths of the screen.
#include "Tweak/Core/Geometry/StripLayout.hpp"

#include <gtest/gtest.h>

namespace {

using namespace pendix;

constexpr Size kPhoneIcon = {60, 74}, kPadIcon = {76, 93};

struct Case {
    const char *what;
    StripInput input;
    int index;
    Rect cell;
};

void expectNear(const Rect &got, const Rect &wanted, const char *what) {
    EXPECT_NEAR(got.x, wanted.x, 1e-4) << what;
    EXPECT_NEAR(got.y, wanted.y, 1e-4) << what;
    EXPECT_NEAR(got.width, wanted.width, 1e-4) << what;
    EXPECT_NEAR(got.height, wanted.height, 1e-4) << what;
}

TEST(StripLayout, PlacesApplications) {
    const StripInput small = {.icon = kPhoneIcon, .rows = 3, .strip = {256, 110}};                  // gap 19
    const StripInput big = {.icon = kPhoneIcon, .rows = 4, .bigScreen = true, .strip = {300, 110}}; // gap 12
    const StripInput pad = {
        .icon = kPadIcon, .rows = 4, .bigScreen = true, .strip = {614.4, 129}}; // gap 62.08
    StripInput tight = small, paged = small, pagedTight = small, single = small;
    tight.rows = 4; // cells of 57, gap 5.6
    paged.paging = true;
    paged.strip.height = 120;
    pagedTight.rows = 4;
    pagedTight.paging = true;
    pagedTight.strip.height = 120;
    single.rows = 1; // gap 98
    single.paging = true;
    single.strip.height = 120;
    const Case cases[] = {
        {"first", small, 0, {19, 18, 60, 79}},
        {"second", small, 1, {98, 18, 60, 79}},
        {"fourth, beyond the strip's end", small, 3, {256, 18, 60, 79}},
        {"four on a small screen", tight, 0, {5.6, 18, 57, 79}},
        {"the last of them", tight, 3, {193.4, 18, 57, 79}},
        {"four on a big screen", big, 1, {84, 18, 60, 79}},
        {"tablet", pad, 2, {338.24, 18, 76, 98}},
        {"first of the first page", paged, 0, {19, 26, 60, 79}},
        {"last of the first page", paged, 2, {177, 26, 60, 79}},
        {"first of the second page", paged, 3, {275, 26, 60, 79}},
        {"seventh, alone on the third page", paged, 6, {531, 26, 60, 79}},
        {"second page of four", pagedTight, 4, {261.6, 26, 57, 79}},
        {"one a page", single, 1, {354, 26, 60, 79}},
    };
    for (const Case &c : cases) expectNear(cellFrame(c.input, c.index), c.cell, c.what);
}

TEST(StripLayout, EveryPageLooksLikeTheFirst) {
    for (int rows = 1; rows <= 8; ++rows) {
        StripInput input = {.icon = kPhoneIcon, .rows = rows, .paging = true, .strip = {256, 120}};
        for (int index = 0; index < 5 * rows; ++index) {
            Rect first = cellFrame(input, index % rows), cell = cellFrame(input, index);
            first.x += static_cast<Real>(index / rows) * input.strip.width;
            expectNear(cell, first, "page");
        }
    }
}

TEST(StripLayout, IsAsHighAsItsIconsNeed) {
    EXPECT_EQ(stripHeight(74, false), 110);
    EXPECT_EQ(stripHeight(74, true), 120);
    EXPECT_EQ(stripHeight(93, false), 129);
}

TEST(StripLayout, NarrowsCellsOnlyWhereTheyAreTight) {
    struct {
        int rows;
        bool bigScreen;
        Real inset;
    } const cases[] = {{1, false, 0}, {3, false, 0}, {4, false, 3},
                       {9, false, 3}, {4, true, 0},  {9, true, 0}};
    for (const auto &c : cases)
        EXPECT_EQ(cellInset({.icon = kPhoneIcon, .rows = c.rows, .bigScreen = c.bigScreen}), c.inset)
            << c.rows;
}

TEST(StripLayout, CountsPages) {
    struct {
        int count, rows, pages;
    } const cases[] = {{0, 3, 0}, {1, 3, 1}, {3, 3, 1}, {4, 3, 2},
                       {7, 3, 3}, {7, 1, 7}, {4, 4, 1}, {100, 4, 25}};
    for (const auto &c : cases) EXPECT_EQ(pageCount(c.count, c.rows), c.pages) << c.count << "/" << c.rows;
}

TEST(StripLayout, AlwaysScrollsAndBounces) {
    EXPECT_EQ(scrollableWidth(0, 256), 257);
    EXPECT_EQ(scrollableWidth(255.9, 256), 257);
    EXPECT_EQ(scrollableWidth(256, 256), 257) << "as wide as the strip";
    EXPECT_EQ(scrollableWidth(335, 256), 335);
    EXPECT_EQ(unpagedContentWidth({}), 0);
    EXPECT_EQ(unpagedContentWidth({{19, 18, 60, 79}}), 98);
    EXPECT_EQ(unpagedContentWidth({{19, 18, 60, 79}, {98, 18, 60, 79}, {177, 18, 60, 79}, {256, 18, 60, 79}}),
              335);
}

TEST(StripLayout, CentresTheDots) {
    EXPECT_EQ(dotsFrame(1, 256), (Rect{118, 7, 20, 11}));
    EXPECT_EQ(dotsFrame(3, 256), (Rect{102, 7, 52, 11}));
    EXPECT_EQ(dotsFrame(2, 300), (Rect{132, 7, 36, 11}));
    const Real step = dotStep(5, 256);
    EXPECT_EQ(dotFrame(0, step), (Rect{10, 2.5, 6, 6}));
    EXPECT_EQ(dotFrame(2, step), (Rect{42, 2.5, 6, 6}));
    Rect row = dotsFrame(5, 256), last = dotFrame(4, step);
    EXPECT_EQ(row.width - last.x - last.width, 4) << "less margin on the right than on the left";
}

// However many pages there are, their dots stay in the row, the row in the panel, and the dots apart.
TEST(StripLayout, FitsManyDotsIntoThePanel) {
    for (Real width : {256.0f, 300.0f, 614.4f}) {
        for (int pages = 1; pages <= 100; ++pages) {
            const Rect row = dotsFrame(pages, width);
            EXPECT_GE(row.x, 0) << pages;
            EXPECT_LE(row.x + row.width, width + 0.01) << pages;
            for (int page = 0; page < pages; ++page) {
                const Rect dot = dotFrame(page, dotStep(pages, width));
                EXPECT_GT(dot.width, 1) << page << " of " << pages;
                EXPECT_NEAR(dot.y + dot.height / 2, 5.5, 0.001) << page << " of " << pages;
                EXPECT_LE(dot.x + dot.width, row.width - 3.9) << page << " of " << pages;
                if (page > 0) {
                    const Rect before = dotFrame(page - 1, dotStep(pages, width));
                    EXPECT_LT(before.x + before.width, dot.x) << page << " of " << pages;
                }
            }
        }
    }
    EXPECT_EQ(dotStep(15, 256), 16) << "the last that fit with the usual step";
    EXPECT_LT(dotStep(16, 256), 16);
}

} // namespace
