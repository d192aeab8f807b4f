// Measures one case on a simulated process of its own: `pendix-bench-… --list`, or
// `… time|count NAME [ARGUMENTS OF GOOGLE BENCHMARK]`. scripts/bench runs it and tells what comes out.
#import <Foundation/Foundation.h>

#include "Measuring/Running.hpp"

#include "Process/Shared/ProcessStart.h"

#include <algorithm>
#include <cstdio>
#include <cstring>

namespace {

int list() {
    for (const auto &benchmark : bench::allCases()) puts(benchmark.name.c_str());
    return 0;
}

int run(const std::string &way, const std::string &name, const std::vector<std::string> &more) {
    auto cases = bench::allCases();
    auto found = std::ranges::find(cases, name, &bench::Case::name);
    if (found == cases.end() || (way != "time" && way != "count")) {
        fprintf(stderr, "there is no '%s %s'\n", way.c_str(), name.c_str());
        return 2;
    }
    sim::startProcess();
    std::vector<std::string> arguments = {name};
    arguments.insert(arguments.end(), more.begin(), more.end());
    @autoreleasepool {
        way == "time" ? bench::timeCase(*found, arguments) : bench::countCase(*found);
    }
    return 0;
}

} // namespace

int main(int count, char **arguments) {
    if (count == 2 && strcmp(arguments[1], "--list") == 0) return list();
    if (count < 3) return run("", "", {});
    return run(arguments[1], arguments[2], {arguments + 3, arguments + count});
}
