#pragma once

namespace pendix {

// A duration of the panel's animations, in seconds: as given, or a quarter of it with the setting `fast`.
// Every such duration passes through here, but not the ones that are set on animation objects.
float animationDuration(float seconds);

} // namespace pendix
