#include "Tweak/Core/Scheme.h"

#include "Tweak/Core/Screen.h"
#include "Tweak/Core/SettingKeys.h"
#include "Tweak/Core/Settings.h"

#include <limits>

namespace pendix {

Scheme currentScheme() {
    UIColor *black = [UIColor blackColor], *white = [UIColor whiteColor];
    return isOn(keys::lightScheme) ? Scheme{YES, black, white} : Scheme{NO, white, black};
}

int numberOfRows() {
    constexpr int kPadRows = 4, kPhoneRows = 3;
    id amount = setting(keys::rows);
    int rows = [amount respondsToSelector:@selector(intValue)] ? [amount intValue] : 0;
    // One that no int holds becomes the largest on a phone, and the smallest elsewhere.
    const bool counts = rows > 0 && rows < std::numeric_limits<int>::max();
    return counts ? rows : isPad() ? kPadRows : kPhoneRows;
}

} // namespace pendix
