#include "Results.hpp"

extern "C" void reportCalculations(results::Report report) {
    results::badges(report);
    results::clock(report);
    results::digits(report);
    results::lock(report);
    results::panel(report);
    results::pulse(report);
    results::strip(report);
}
