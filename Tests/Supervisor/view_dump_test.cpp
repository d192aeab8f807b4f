// The text dump: one line a view, indented by depth, with what is unusual and without what is usual.
#include "Supervisor/Machine/ViewDump.hpp"

#include <gtest/gtest.h>

namespace {

using sim::Array;
using sim::Object;
using sim::Value;

Value view(int64_t number, const char *className, Array children, Object more) {
    Object fields{{"number", number},
                  {"class", className},
                  {"tag", 0},
                  {"x", 0.0},
                  {"y", 0.0},
                  {"w", 320.0},
                  {"h", 20.5},
                  {"alpha", 1.0},
                  {"presented_alpha", 1.0},
                  {"hidden", false},
                  {"interactive", true},
                  {"animations", Array{}},
                  {"gestures", Array{}},
                  {"corner_radius", 0.0},
                  {"transform", Array{1.0, 0.0, 0.0, 1.0, 0.0, 0.0}},
                  {"children", std::move(children)}};
    for (auto &[name, value] : more) fields[name] = value;
    return fields;
}

TEST(ViewDump, ShowsTheTree) {
    Value answer = Object{
        {"matches", Array{1}},
        {"views", Array{view(1, "UIWindow", {2, 3}, {{"level", 1050.0}}),
                        view(2, "UIView", {4},
                             {{"tag", -1}, {"hidden", true}, {"gestures", Array{"UITapGestureRecognizer"}}}),
                        view(3, "UILabel", {},
                             {{"text", "Hello"},
                              {"text_color", "#ffffffff"},
                              {"interactive", false},
                              {"alpha", 0.5},
                              {"presented_alpha", 0.25},
                              {"animations", Array{Object{{"keypath", "opacity"}}}}}),
                        view(4, "UIImageView", {}, {{"name", "mark"}, {"image", "dot.png"}})}}};
    EXPECT_EQ(sim::viewDump(answer),
              "UIWindow (0 0; 320 20.5) level 1050\n"
              "  UIView tag -1 (0 0; 320 20.5) hidden true gestures {\"UITapGestureRecognizer\"}\n"
              "    UIImageView \"mark\" (0 0; 320 20.5) image \"dot.png\"\n"
              "  UILabel \"Hello\" (0 0; 320 20.5) alpha 0.5 interactive false text_color \"#ffffffff\""
              " presented_alpha 0.25 animates opacity\n");
    EXPECT_EQ(sim::viewDump(Object{{"matches", Array{}}, {"views", Array{}}}), "");
}

} // namespace
