#include "Forgetting.h"

#include "Elements.h"
#include "GivenProperties.h"
#include "VoiceOver.h"

namespace sim {

void forgetAccessibility(id object) {
    forgetGiven(object);
    forgetNumber(object);
    forgetFocus(object);
}

} // namespace sim
