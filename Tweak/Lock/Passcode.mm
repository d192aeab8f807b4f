#include "Tweak/Lock/Passcode.h"

namespace pendix {

BOOL isPasscode(id stored) { return stored && ![stored isEqual:@""]; }

BOOL matchesPasscode(NSString *entered, id stored) {
    return [stored isKindOfClass:[NSString class]] && [entered isEqualToString:stored];
}

} // namespace pendix
