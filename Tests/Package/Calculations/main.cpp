// The calculations' results on this machine: a line each, the name and the value in hexadecimal.
#include "Results.hpp"

#include <cstdio>

int main() {
    reportCalculations([](const char *name, double value) { std::printf("%s\t%a\n", name, value); });
}
