#pragma once

namespace sim {

// Makes the objects that Foundation keeps for the life of a process and never gives back, where the leak
// sanitizer does not count them. Early in main(); without sanitizers it only makes them early.
void makeFoundationSingletons();

} // namespace sim
