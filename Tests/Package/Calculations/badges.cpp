#include "ReportRect.hpp"
#include "Tweak/Core/Geometry/BadgeLayout.hpp"

void results::badges(Report report) {
    const pendix::Rect icons[] = {{0, 0, 60, 60}, {12.5f, 7, 76, 76}};
    for (const pendix::Rect &icon : icons) {
        for (float text : {0.0f, 6.25f, 19.0f, 43.75f}) {
            for (float height : {17.0f, 24.0f}) {
                reportRect(report, "badgeFrame", pendix::badgeFrame(icon, text, height));
            }
        }
    }
    for (float seen : {0.0f, 20.5f, 24.0f}) report("badgeHeightOr", pendix::badgeHeightOr(seen));
}
