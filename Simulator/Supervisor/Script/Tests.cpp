#include "Tests.hpp"

#include "Binding.hpp"
#include "Library.hpp"

namespace sim {

namespace {

int test(lua_State *lua, Script &script) {
    std::string name = text(lua, 1, "the test's name");
    if (!lua_isfunction(lua, 2)) throw std::runtime_error("a test is a name and a function");
    lua_settop(lua, 2);
    script.runTest(lua, name);
    return 0;
}

} // namespace

std::span<const Global> testGlobals() {
    static const Global globals[] = {{"test",
                                      bound<test>,
                                      {{"name", "what it proves"}, {"run", "a function"}},
                                      "Runs a function as a test of its own: what fails in it, an error too, "
                                      "fails this test, and the script goes "
                                      "on. A script without any is one test. `pendix-sim test` lists them."}};
    return globals;
}

Value toValue(const TestResult &result) {
    return Object{{"name", result.name},
                  {"failures", Array(result.failures.begin(), result.failures.end())},
                  {"seconds", result.seconds}};
}

TestResult testResult(const Value &value) {
    TestResult result = {.name = value["name"].string(), .seconds = value["seconds"].number()};
    for (const auto &failure : value["failures"].array()) result.failures.push_back(failure.string());
    return result;
}

std::string testTitle(const std::filesystem::path &file, const std::string &name) {
    return file.string() + (name.empty() ? "" : ": " + name);
}

bool isChosen(const std::string &filter, const std::filesystem::path &file, const std::string &name) {
    return testTitle(file, name).find(filter) != std::string::npos;
}

} // namespace sim
