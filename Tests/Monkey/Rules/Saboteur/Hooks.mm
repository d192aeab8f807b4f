#include "Saboteur.h"

#include <SpringBoard/SBIcon.h>

namespace saboteur {

namespace {

// What the extension calls in place of the previous implementation, and what that was.
BOOL (*click)(id, SEL);
BOOL (*doubleClick)(id, SEL);
void (*banner)(id, SEL, id, NSInteger);

BOOL noClick(id, SEL) { return YES; }
BOOL twoClicks(id self, SEL selector) {
    click(self, selector);
    return click(self, selector);
}
BOOL noDoubleClick(id, SEL) { return YES; }
void noBanner(id, SEL, id, NSInteger) {}

template <typename Function>
void replace(const char *symbol, Function *&previous, Function *replacement) {
    auto &slot = variable<Function *>(symbol);
    previous = slot;
    slot = replacement;
}

void swallowClick() { replace("_ZN6pendix8original17clickedMenuButtonE", click, noClick); }
void clickTwice() { replace("_ZN6pendix8original17clickedMenuButtonE", click, twoClicks); }
void swallowDoubleClick() {
    replace("_ZN6pendix8original19handleMenuDoubleTapE", doubleClick, noDoubleClick);
}
void swallowBanner() { replace("_ZN6pendix8original23presentBannerForContextE", banner, noBanner); }
void askSystem() {
    using Ask = BOOL (*)(id, SEL);
    variable<Ask>("_ZN6pendix8original27shouldCreateContextAsSecureE")(
        overlay(), sel_registerName("_shouldCreateContextAsSecure"));
}

} // namespace

std::span<const Act> hookActs() {
    static const Act list[] = {{"swallow click", swallowClick},
                               {"click twice", clickTwice},
                               {"swallow double click", swallowDoubleClick},
                               {"swallow banner", swallowBanner},
                               {"ask system", askSystem}};
    return list;
}

} // namespace saboteur
