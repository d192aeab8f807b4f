#include "JUnit.hpp"

#include "Runtime/Values/Json.hpp"

#include <algorithm>
#include <map>
#include <numeric>

namespace sim {

namespace {

// Without what XML cannot hold: control characters, and bytes that are no text in UTF-8.
std::string escaped(const std::string &text) {
    static const std::map<char, const char *> names = {{'&', "&amp;"},  {'<', "&lt;"},   {'>', "&gt;"},
                                                       {'"', "&quot;"}, {'\n', "&#10;"}, {'\t', "&#9;"}};
    const Value plain = parseJson(toJson(text));
    std::string result;
    for (char byte : plain.string()) {
        auto name = names.find(byte);
        if (name != names.end())
            result += name->second;
        else if (static_cast<unsigned char>(byte) >= ' ')
            result += byte;
    }
    return result;
}

std::string attribute(const char *name, const std::string &value) {
    return std::string(" ") + name + "=\"" + escaped(value) + "\"";
}

std::string seconds(double value) {
    char text[32];
    snprintf(text, sizeof text, "%.3f", value);
    return text;
}

size_t failures(const TestedFile &file) {
    return static_cast<size_t>(
        std::ranges::count_if(file.tests, [](const auto &test) { return !test.failures.empty(); }));
}

std::string testCase(const TestedFile &file, const TestResult &test) {
    std::string text = "    <testcase" + attribute("classname", file.script.string()) +
                       attribute("name", test.name.empty() ? file.script.stem().string() : test.name) +
                       attribute("time", seconds(test.seconds));
    if (test.failures.empty()) return text + "/>\n";
    text += ">\n";
    for (const auto &failure : test.failures)
        text += "      <failure" + attribute("message", failure.substr(0, failure.find('\n'))) + ">" +
                escaped(failure) + "</failure>\n";
    return text + "    </testcase>\n";
}

std::string counts(size_t tests, size_t failed, double time) {
    return attribute("tests", std::to_string(tests)) + attribute("failures", std::to_string(failed)) +
           attribute("time", seconds(time));
}

double time(const TestedFile &file) {
    return std::accumulate(file.tests.begin(), file.tests.end(), 0.0,
                           [](double sum, const auto &test) { return sum + test.seconds; });
}

} // namespace

std::string junitReport(const std::vector<TestedFile> &files) {
    std::string suites;
    size_t tests = 0, failed = 0;
    double taken = 0;
    for (const auto &file : files) {
        suites += "  <testsuite" + attribute("name", file.script.string()) +
                  counts(file.tests.size(), failures(file), time(file)) + ">\n";
        for (const auto &test : file.tests) suites += testCase(file, test);
        if (failures(file)) suites += "    <system-out>" + escaped(file.said) + "</system-out>\n";
        suites += "  </testsuite>\n";
        tests += file.tests.size();
        failed += failures(file);
        taken += time(file);
    }
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<testsuites" + counts(tests, failed, taken) + ">\n" +
           suites + "</testsuites>\n";
}

} // namespace sim
