// The fingerprint sensor, as the panel's other parts see it.
#pragma once

namespace pendix {

void startFingerMonitor();
// Does nothing while none is started.
void stopFingerMonitor();

} // namespace pendix
