// What runs when the library is loaded. A unit of its own, without a message in it and last on the link line:
// a selector can be used only after its own unit's have been registered.

namespace probe {
void watchCalls();
void startAfterLaunch();
} // namespace probe

__attribute__((constructor)) static void initialize() {
    probe::watchCalls();
    probe::startAfterLaunch();
}
