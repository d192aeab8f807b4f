// What runs when the library is loaded. A unit of its own, without a message in it and last on the link line:
// a selector can be used only after its own unit's have been registered, and this one needs those of all
// others.

namespace pendix {
void createBadgeList();
void installHooks();
} // namespace pendix

__attribute__((constructor)) static void initialize() {
    // The badge list first: hooks may run from the moment they are in place.
    pendix::createBadgeList();
    pendix::installHooks();
}
