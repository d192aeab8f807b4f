#include "RowFields.h"

#include "ViewAnimations.h"

namespace sim {

void putRect(RowWriter &row, CGRect rect) {
    for (CGFloat number : {rect.origin.x, rect.origin.y, rect.size.width, rect.size.height})
        row.put(rounded(number));
}

void putText(RowWriter &row, NSString *text) {
    const char *utf8 = [text UTF8String];
    row.put(std::string_view(utf8 ? utf8 : ""));
}

void putText(RowWriter &row, const Value &text) {
    row.put(text.isString() ? std::string_view(text.string()) : std::string_view());
}

} // namespace sim
