#pragma once

namespace sim {

// Creates Foundation's singletons, which live as long as the process, where the leak sanitizer does not count
// them. Early in main(); without sanitizers it only makes them early.
void makeFoundationSingletons();

} // namespace sim
