// Symbolicates crash reports.
#pragma once

#include <string>

namespace sim {

// Lines "frame PATH+0xOFFSET" become "FUNCTION (FILE:LINE) in LIBRARY", as far as the machine's tools find
// out; other lines, and all of them when there is no such tool, stay as they are.
std::string symbolise(const std::string &report);

} // namespace sim
