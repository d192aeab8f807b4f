// pendix-sim: simulated devices, driven by scripts or by people.
#include "Command.hpp"

int main(int count, char **arguments) {
    static const sim::CommandRow commands[] = {
        {"run", "Run a script", sim::makeRun},
        {"test", "Run tests, and compare pictures", sim::makeTest},
        {"live", "Show a device as a web page on this machine", sim::makeLive},
        {"record", "The same, and write what was done as a script", sim::makeRecord},
        {"shot", "Take one picture of a device", sim::makeShot},
        {"monkey", "Do random things to random devices, and watch for faults", sim::makeMonkey},
        {"new", "Make an extension to begin with: a hook, a filter and a test", sim::makeNew},
        {"build", "Build an extension for the simulated devices", sim::makeBuild},
        {"profiles", "List the devices and their system versions", sim::makeProfiles},
        {"help", "Tell about a call, an option, an event, a device, a setting", sim::makeHelp}};
    return static_cast<int>(sim::runCommand(commands, count, arguments));
}
