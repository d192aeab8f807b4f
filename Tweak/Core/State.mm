#include "Tweak/Core/State.h"

namespace pendix {

void createBadgeList() {
    datas = [NSMutableArray new];
    drawnBadges = [NSMutableDictionary new];
}

} // namespace pendix
