#include "ReportRect.hpp"
#include "Tweak/Core/Geometry/StripClosing.hpp"
#include "Tweak/Core/Geometry/StripLayout.hpp"
#include "Tweak/Core/Geometry/StripPages.hpp"

namespace {

using namespace pendix;

void closings(results::Report report, const StripInput &input, const std::vector<Rect> &cells) {
    for (int index = 0; index < static_cast<int>(cells.size()); ++index) {
        std::vector<Rect> remaining = cells;
        remaining.erase(remaining.begin() + index);
        for (const Rect &frame : framesAfterClosing(remaining, cells[static_cast<std::size_t>(index)], index,
                                                    input.strip.width, input.rows)) {
            results::reportRect(report, "framesAfterClosing", frame);
        }
        report("contentWidthAfterClosing",
               contentWidthAfterClosing(remaining, input.paging, input.rows, input.strip.width));
    }
}

void turning(results::Report report, StripExtent extent) {
    for (int page = 0; page < 3; ++page) {
        report("stripPage", stripPage(extent).number);
        report("stripPages", stripPage(extent).count);
        report("previousPage", previousPage(extent));
        report("isSeen", isSeen(extent, 300, 60));
        extent.offset = nextPage(extent);
        report("nextPage", extent.offset);
    }
}

void layout(results::Report report, const StripInput &input) {
    constexpr int kApplications = 7;
    report("cellInset", cellInset(input));
    std::vector<Rect> cells;
    for (int index = 0; index < kApplications; ++index) {
        cells.push_back(cellFrame(input, index));
        results::reportRect(report, "cellFrame", cells.back());
    }
    const Real content = unpagedContentWidth(cells);
    report("unpagedContentWidth", content);
    report("scrollableWidth", scrollableWidth(content, input.strip.width));
    const int pages = pageCount(kApplications, input.rows);
    report("pageCount", pages);
    results::reportRect(report, "dotsFrame", dotsFrame(pages, input.strip.width));
    turning(report, {0, input.strip.width, content, cells.front().x, input.paging});
    closings(report, input, cells);
}

} // namespace

void results::strip(Report report) {
    for (int page = 0; page < 4; ++page) reportRect(report, "dotFrame", dotFrame(page, dotStep(4, 256)));
    for (int page = 0; page < 4; ++page) reportRect(report, "dotFrame", dotFrame(page, dotStep(20, 256)));
    for (bool paging : {false, true}) {
        report("stripHeight", stripHeight(60, paging));
        for (int rows = 1; rows <= 5; ++rows) {
            layout(report, {{60, 60}, rows, paging, false, {256, 96}});
            layout(report, {{76, 76}, rows, paging, true, {614.5f, 122}});
        }
    }
}
