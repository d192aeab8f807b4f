#include "Tweak/Core/Scheme.h"

#include "Tweak/Core/Screen.h"
#include "Tweak/Core/SettingKeys.h"
#include "Tweak/Core/Settings.h"

namespace pendix {

Scheme currentScheme() {
    UIColor *black = [UIColor blackColor], *white = [UIColor whiteColor];
    return isOn(keys::lightScheme) ? Scheme{YES, black, white} : Scheme{NO, white, black};
}

int numberOfRows() {
    constexpr int kPadRows = 4, kPhoneRows = 3;
    id amount = setting(keys::rows);
    int rows = [amount respondsToSelector:@selector(intValue)] ? [amount intValue] : 0;
    return rows > 0 ? rows : isPad() ? kPadRows : kPhoneRows;
}

} // namespace pendix
