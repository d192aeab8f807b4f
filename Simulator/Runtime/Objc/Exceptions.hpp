// What a simulated process does with errors that end it on a device.
#pragma once

namespace sim {

// An unknown selector becomes an event "unrecognized" (class, selector) and then, as on the platform, an
// exception of kind NSInvalidArgumentException. An exception that nobody catches ends the process with
// SIGABRT and its name and reason in the crash report.
void installExceptions();

} // namespace sim
