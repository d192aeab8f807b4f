// What the two calling conventions make of types.
#include "Runtime/MachO/File/CallShape.hpp"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

using namespace sim::macho;

namespace {

std::string shown(const char *types) {
    static const char *const names[] = {"-", "truth", "short", "unsigned short"};
    CallShape shape;
    try {
        shape = callShape(types);
    } catch (const std::invalid_argument &) {
        return "refused";
    }
    std::string text = names[static_cast<int>(shape.result)];
    for (auto [index, width] : shape.small)
        text += " x" + std::to_string(index) + " " + names[static_cast<int>(width)];
    return text + (shape.usesStack ? " stack" : "") + (shape.packed ? " packed" : "");
}

TEST(CallShape, OfTypes) {
    constexpr const char *kRectangle = "{CGRect={CGPoint=dd}{CGSize=dd}}";
    const struct {
        std::string types;
        const char *wanted;
    } cases[] = {
        {"v16@0:8", "-"},
        {"B16@0:8", "truth"},
        {"C24@0:8@16", "truth"},
        {"S24@0:8Q16", "unsigned short"},
        {"v20@0:8B16", "- x2 truth"},
        {"v32@0:8d16B24s28", "- x2 truth x3 short"},
        {"v12@?0B8", "- x1 truth"},
        {"v16@?0@\"NSString\"8", "-"},
        {"v24@0:8@?<v@?B>16", "-"},
        // Rectangles take four floating registers each; the third lies on the stack, in whole words.
        {std::string("v@:") + kRectangle + kRectangle + "B", "- x2 truth"},
        {std::string("v@:") + kRectangle + kRectangle + kRectangle + "B", "- x2 truth stack"},
        // A large structure of other things goes by its address, a small one in as many registers as it has
        // words.
        {"v@:{Large=qqqB}B", "- x3 truth"},
        {"v@:{Small=qB}B", "- x4 truth"},
        {"v@:@@@@@@", "-"},
        {"v@:@@@@@@@", "- stack"},
        {"v@:@@@@@@B", "- stack packed"},
        {"v@:@@@@@@i", "- stack packed"},
        {"v@:ddddddddf", "- stack packed"},
        {"v@:ddddddddd", "- stack"},
        {"v@:^{Unknown}^v*#:", "-"},
        {"v@:[4i]", "-"},
        {"Vv@:", "-"},
        // Refused: a long double, bits, a union, nothing at all, and what has no end.
        {"v@:D", "refused"},
        {"v@:b4", "refused"},
        {"v@:(Either=iq)", "refused"},
        {"", "refused"},
        {"v@:{CGRect=dd", "refused"},
        {"v@:@\"NSString", "refused"},
        {"v@:" + std::string(100, '^') + "v", "refused"},
    };
    for (const auto &[types, wanted] : cases) EXPECT_EQ(shown(types.c_str()), wanted) << types;
}

} // namespace
