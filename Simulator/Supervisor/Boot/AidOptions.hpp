// What the user of a device has set to be helped: options of `boot`, and of the call that changes one.
#pragma once

#include "OptionReader.hpp"
#include "Runtime/Values/Aids.hpp"

namespace sim {

const std::vector<Described> &aidOptions();

// Throws BootError for a size of text that there is not.
void checkAids(const OptionReader &reader, const Aids &aids);

// The same with one of them changed. Throws BootError, whose text names what is wrong.
Aids changedAid(Aids aids, const std::string &name, const Value &value);

} // namespace sim
