// How a script runs its tests.
#include "Library.hpp"
#include "Script.hpp"
#include "Supervisor/Machine/Interrupt.hpp"
#include "Traceback.hpp"

#include <chrono>
#include <iostream>

namespace sim {

void Script::runTest(lua_State *lua, const std::string &name) {
    if (test_) throw std::runtime_error("a test cannot stand in a test");
    if (!isChosen(options_.filter, options_.file, name)) {
        ++testsLeftOut_;
        return;
    }
    ++testsRun_;
    auto start = std::chrono::steady_clock::now();
    test_ = {.name = name};
    if (trace_) trace_->setTest(name);
    lua_pushcfunction(lua, addTraceback);
    lua_insert(lua, -2);
    bool ended = lua_pcall(lua, 0, 0, -2) == LUA_OK;
    std::string error = ended ? "" : lua_tostring(lua, -1);
    std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
    test_->seconds = taken.count();
    if (interrupted()) throw std::runtime_error("interrupted");
    if (!ended) {
        failed_ = true;
        refused_ |= isBootError(error);
        noteFailure(error.substr(0, error.find('\n')));
        std::cerr << "error: test '" << name << "': " << error << '\n';
        reportDevice();
    }
    endTest();
}

void Script::endTest() {
    if (options_.tested) options_.tested(*test_);
    test_.reset();
    if (trace_) trace_->setTest("");
}

void Script::noteFailure(const std::string &text) {
    (test_ ? *test_ : outside_).failures.push_back(text);
    if (trace_) trace_->addFailure(text);
}

bool Script::isLeftOut(Outcome ended) const {
    return ended == Outcome::passed && testsRun_ == 0 && !isChosen(options_.filter, options_.file, "");
}

// A script without tests is one; what fails outside of those of another is one more.
void Script::tellOutside(double seconds) {
    bool whole = testsRun_ == 0 && testsLeftOut_ == 0;
    if (!options_.tested || (!whole && outside_.failures.empty())) return;
    if (!whole) outside_.name = "outside of its tests";
    outside_.seconds = seconds;
    options_.tested(outside_);
}

} // namespace sim
