#include "StockRows.h"

#include "UIKit/Materials/DrawnImage.h"

#include <Preferences/Preferences.h>

#include <vector>

namespace {

struct StockRow {
    const char *title, *color, *glyph; // the glyph is a piece of an SVG drawing of 29 by 29 points
};

constexpr const char *kGear =
    R"(<circle cx="14.5" cy="14.5" r="6" fill="none" stroke="#fff" stroke-width="2.5"/>
<g stroke="#fff" stroke-width="2.5"><path d="M14.5 4v4M14.5 21v4M4 14.5h4M21 14.5h4M7 7l3 3M19 19l3 3M7 22l3-3M19 10l3-3"/></g>)";
constexpr const char *kWaves =
    R"(<g fill="none" stroke="#fff" stroke-width="2.4"><path d="M6 12a12 12 0 0 1 17 0M9.5 16a7.2 7.2 0 0 1 10 0"/></g>
<circle cx="14.5" cy="20" r="2" fill="#fff"/>)";
constexpr const char *kRune =
    R"(<path d="M10 10l9 9-4.5 4.5v-18L19 10l-9 9" fill="none" stroke="#fff" stroke-width="1.8"/>)";
constexpr const char *kBubble =
    R"(<rect x="6" y="6" width="17" height="17" rx="3" fill="none" stroke="#fff" stroke-width="2"/><circle cx="23" cy="6.5" r="4" fill="#fff"/>)";
constexpr const char *kMoon = R"(<path d="M19 18.5a8 8 0 1 1-7-12 6.5 6.5 0 0 0 7 12z" fill="#fff"/>)";
constexpr const char *kSpeaker =
    R"(<path d="M6 12h4l5-4v13l-5-4H6z" fill="#fff"/><path d="M18 10a6 6 0 0 1 0 9" fill="none" stroke="#fff" stroke-width="2"/>)";
constexpr const char *kHand =
    R"(<path d="M9 14V8M12.5 13V6M16 13V6.5M19.5 15V9M9 14c0 6 2 9 5.5 9s5-3 5-8" fill="none" stroke="#fff" stroke-width="2.4" stroke-linecap="round"/>)";

const std::vector<std::vector<StockRow>> kGroups = {
    {{"Wi-Fi", "#007aff", kWaves}, {"Bluetooth", "#007aff", kRune}},
    {{"Notification Center", "#8e8e93", kBubble}, {"Do Not Disturb", "#5856d6", kMoon}},
    {{"General", "#8e8e93", kGear}, {"Sounds", "#ff3b30", kSpeaker}, {"Privacy", "#8e8e93", kHand}}};

UIImage *icon(const StockRow &row) {
    std::string svg =
        R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 29 29"><rect width="29" height="29" rx="6.5" fill=")" +
        std::string(row.color) + "\"/>" + row.glyph + "</svg>";
    return sim::drawnImage(svg, CGSizeMake(29, 29));
}

} // namespace

namespace sim {

NSArray *stockRows() {
    NSMutableArray *result = [NSMutableArray array];
    for (const auto &group : kGroups) {
        [result addObject:[PSSpecifier emptyGroupSpecifier]];
        for (const auto &row : group) {
            PSSpecifier *specifier =
                [PSSpecifier preferenceSpecifierNamed:[NSString stringWithUTF8String:row.title]
                                               target:nil
                                                  set:nullptr
                                                  get:nullptr
                                               detail:[PSListController class]
                                                 cell:PSLinkCell
                                                 edit:Nil];
            [specifier setProperty:icon(row) forKey:@"iconImage"];
            [result addObject:specifier];
        }
    }
    return result;
}

} // namespace sim
