#include "AidOptions.hpp"

#include "Supervisor/Text/Suggest.hpp"

#include <algorithm>
#include <iterator>

namespace sim {

const std::vector<Described> &aidOptions() {
    static const std::vector<Described> options = {
        {"voiceover", "true: VoiceOver reads the screen; false without it"},
        {"reduce_motion", "true: screens fade instead of moving; applications can ask from iOS 8 on"},
        {"reduce_transparency", "true: materials are to be solid; likewise"},
        {"darker_colors", "true: colours are to be darker; likewise"},
        {"bold_text", "true: texts are to be bold; likewise"},
        {"text_size", "of larger or smaller text: \"XS\", \"S\", \"M\", \"L\" (without it), \"XL\", \"XXL\", "
                      "\"XXXL\", or \"AX1\" to \"AX5\""}};
    return options;
}

void checkAids(const OptionReader &reader, const Aids &aids) {
    if (std::ranges::count(kTextSizes, aids.textSize)) return;
    std::vector<std::string> known(std::begin(kTextSizes), std::end(kTextSizes));
    reader.fail("there is no text size '" + aids.textSize + "'" +
                (nearest(aids.textSize, known).empty() ? "; there are " + listed(known)
                                                       : suggestion(aids.textSize, known)));
}

Aids changedAid(Aids aids, const std::string &name, const Value &value) {
    OptionReader reader(Object{{name, value}}, "aid", aidOptions());
    eachField(aids, reader);
    reader.finish();
    checkAids(reader, aids);
    return aids;
}

} // namespace sim
