// From a bare process to a home screen that has finished launching.
#include "Process/Shared/BootDevice.h"
#include "Process/Shared/ExtensionLoader.h"
#include "Process/Shared/Requests.h"

#include "Runtime/Process/Interposed.hpp"
#include "SpringBoard/Applications/Applications.h"
#include "SpringBoard/HomeScreen.h"

namespace sim {

namespace {

bool isRunning(int process) {
    for (SBApplication *application : installedApplications())
        if (record(application).pid == process) return true;
    return false;
}

bool passSignal(int process, int number) {
    bool known = isRunning(process);
    deliverSignal(process, number);
    return known;
}

Value boot(const Value &arguments) {
    BootMessage message = readBootMessage(arguments);
    bootDevice(message);
    onSignal(passSignal);
    prepareHomeScreen(message);
    if (message.extension) loadExtensions("com.apple.springboard", "SpringBoard");
    launchHomeScreen();
    return {};
}

} // namespace

std::span<const Request> bootRequests() {
    static const Request requests[] = {{"boot", boot}};
    return requests;
}

} // namespace sim
