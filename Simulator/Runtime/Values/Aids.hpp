// The ways of helping people that a user has switched on, by the names that scripts give them.
#pragma once

#include <string>

namespace sim {

struct Aids {
    bool voiceOver = false;
    bool reduceMotion = false;
    bool reduceTransparency = false;
    bool darkerColors = false;
    bool boldText = false;
    std::string textSize = "L"; // one of kTextSizes

    bool operator==(const Aids &) const = default;
};

template <typename Field>
void eachField(Aids &aids, Field &&field) {
    field("voiceover", aids.voiceOver);
    field("reduce_motion", aids.reduceMotion);
    field("reduce_transparency", aids.reduceTransparency);
    field("darker_colors", aids.darkerColors);
    field("bold_text", aids.boldText);
    field("text_size", aids.textSize);
}

// From the smallest: "XS" to "XXXL", then "AX1" to "AX5" for those who see badly.
inline constexpr const char *kTextSizes[] = {"XS",   "S",   "M",   "L",   "XL",  "XXL",
                                             "XXXL", "AX1", "AX2", "AX3", "AX4", "AX5"};

} // namespace sim
