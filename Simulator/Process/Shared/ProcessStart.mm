#include "ProcessStart.h"

#include "Runtime/Files/FoundationFiles.hpp"
#include "Runtime/Objc/Blocks.hpp"
#include "Runtime/Objc/Census.hpp"
#include "Runtime/Objc/Exceptions.hpp"
#include "Runtime/Process/Singletons.hpp"
#include "Runtime/Time/Timers.hpp"
#include "UIKit/Application/ApplicationState.h"

namespace sim {

void startProcess() {
    installBlocks();
    installCensus();
    makeFoundationSingletons();
    installExceptions();
    installTimers();
    installRunLoop();
    installPropertyLists();
}

} // namespace sim
