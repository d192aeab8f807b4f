// Variable arguments: a device's code leaves each of them in a word on the stack, functions here look for
// them in registers first.
#pragma once

#include <string>
#include <string_view>

namespace sim {

// Whether the headers declare a method, or a function (without an underscore in front), with variable
// arguments.
bool hasVariableArguments(std::string_view selector);
bool isVariadicFunction(std::string_view name);
// Whether the headers declare that a function gives a BOOL.
bool givesTruth(std::string_view function);

// What takes a message of that name as the device sends it; null where nobody does.
void *variableArgumentsEntry(std::string_view selector);

} // namespace sim

extern "C" void simLogEntry(); // NSLog
