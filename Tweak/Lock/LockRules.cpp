#include "Tweak/Lock/LockRules.hpp"

namespace pendix {

bool armedAtOpening(Where where, bool armed, bool passcodeLocked) {
    switch (where) {
    case Where::everyOpening:
        return true;
    case Where::deviceLocked:
        return passcodeLocked;
    case Where::displayOff:
        break;
    }
    return armed;
}

OpeningFace openingFace(bool sensor, bool touchid, bool ask) {
    const bool finger = sensor && touchid;
    return {finger, ask, finger && !ask};
}

} // namespace pendix
