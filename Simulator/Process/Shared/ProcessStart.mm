#include "ProcessStart.h"

#include "Runtime/Objc/Blocks.hpp"
#include "Runtime/Objc/Census.hpp"
#include "Runtime/Objc/Exceptions.hpp"
#include "Runtime/Process/Singletons.hpp"

namespace sim {

void startProcess() {
    installBlocks();
    installCensus();
    makeFoundationSingletons();
    installExceptions();
}

} // namespace sim
