// Proves where the parts of a table stand and which of them can be seen.
#include "UIKit/Tables/TableLayout.hpp"

#include <gtest/gtest.h>

namespace {

using sim::TableRow;

// 10 points above all; a group of two rows with header and footer, an empty group, one row.
sim::TableLayout layout() { return {{{35, 20, {44, 44}}, {5, 0, {}}, {0, 7, {60}}}, 10}; }

TEST(TableLayout, StacksHeadersRowsAndFooters) {
    auto table = layout();
    const struct {
        sim::Span span;
        double top, height;
    } cases[] = {{table.header(0), 10, 35},  {table.row({0, 0}), 45, 44},  {table.row({0, 1}), 89, 44},
                 {table.footer(0), 133, 20}, {table.section(0), 10, 143},  {table.header(1), 153, 5},
                 {table.footer(1), 158, 0},  {table.row({2, 0}), 158, 60}, {table.footer(2), 218, 7}};
    for (const auto &[span, top, height] : cases) {
        EXPECT_DOUBLE_EQ(span.top, top);
        EXPECT_DOUBLE_EQ(span.height, height);
    }
    EXPECT_DOUBLE_EQ(table.bottom(), 225);
}

TEST(TableLayout, FindsTheRowAtAHeight) {
    auto table = layout();
    const std::pair<double, std::optional<TableRow>> cases[] = {
        {0, std::nullopt},    {44.9, std::nullopt}, {45, TableRow{0, 0}},  {88.9, TableRow{0, 0}},
        {89, TableRow{0, 1}}, {133, std::nullopt},  {158, TableRow{2, 0}}, {218, std::nullopt}};
    for (const auto &[y, row] : cases) EXPECT_EQ(table.rowAt(y), row) << y;
}

TEST(TableLayout, ListsTheRowsOfWhichAnyPartShows) {
    auto table = layout();
    EXPECT_EQ(table.rowsWithin(0, 45), std::vector<TableRow>{});
    EXPECT_EQ(table.rowsWithin(0, 45.5), (std::vector<TableRow>{{0, 0}}));
    EXPECT_EQ(table.rowsWithin(88, 160), (std::vector<TableRow>{{0, 0}, {0, 1}, {2, 0}}));
    EXPECT_TRUE(sim::TableLayout().rowsWithin(0, 100).empty());
}

} // namespace
