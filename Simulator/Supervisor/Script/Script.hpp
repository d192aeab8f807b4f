// One run of a script: its interpreter, the devices that it boots, and what it found wrong.
#pragma once

#include "Supervisor/Machine/SimulatedDevice.hpp"
#include "Supervisor/Trace/Trace.hpp"
#include "Tests.hpp"

#include <filesystem>
#include <functional>
#include <lua.hpp>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace sim {

struct Phone;

struct ScriptOptions {
    std::filesystem::path file;
    std::vector<std::string> arguments;
    std::filesystem::path pictures = "out"; // made when the first picture is written
    int64_t seed = 0;
    bool update = false; // expect_picture() agrees to what is there
    std::string filter;  // of tests: a part of their titles
    bool trace = false;  // keep what each step did
    // Told of each test as soon as it has ended. Null: nobody is.
    std::function<void(const TestResult &)> tested = nullptr;
};

// Exit statuses.
enum class Outcome { passed = 0, failed = 1, refused = 2 };

class Script {
public:
    Script(DeviceSetup setup, ScriptOptions options);
    ~Script();
    Script(const Script &) = delete;
    Script &operator=(const Script &) = delete;

    // Runs it to its end. Failed expectations do not stop it; they and an error that does are reported on the
    // standard error stream, with a picture of the moment. Says on standard output how many held when all
    // did. `refused` when the script or a boot that it asked for could not be started.
    Outcome run();

    // For what the script calls:
    const ScriptOptions &options() const { return options_; }
    const DeviceSetup &setup() const { return setup_; }
    // An expectation did not hold. `where` is "file:line".
    void fail(const std::string &where, const std::string &message);
    // One did.
    void hold() { ++held_; }
    // Runs the function on top of the stack as a test, if it is chosen. Throws std::runtime_error within
    // another test.
    void runTest(lua_State *lua, const std::string &name);
    // A boot was wrong; the script may go on if it catches the error.
    void noteBootError(const std::string &text) { bootErrors_.push_back(text); }
    Phone &add(std::unique_ptr<Phone> phone);
    void close(Phone *phone);
    // What each step did; nullptr unless that was asked for.
    Trace *trace() { return trace_ ? &*trace_ : nullptr; }
    // For who runs pieces of a script one by one.
    lua_State *interpreter() const { return lua_; }
    // The one that was booted last; nullptr before the first boot.
    Phone *lastPhone() const { return phones_.empty() ? nullptr : phones_.back().get(); }

private:
    Outcome runFile();
    void noteFailure(const std::string &text);
    void endTest();
    // Whether nothing of the script was chosen; what failed in one that could not go on counts all the same.
    bool isLeftOut(Outcome ended) const;
    void tellOutside(double seconds);
    bool isBootError(const std::string &text) const;
    Outcome reportError();
    void reportDevice();
    std::string pictureOfFailure(SimulatedScreen &device);
    void tellWarnings(const SimulatedScreen &device) const;
    void summarize(Outcome outcome) const;
    void addTroubles(const std::string &troubles);

    DeviceSetup setup_;
    ScriptOptions options_;
    lua_State *lua_;
    std::vector<std::unique_ptr<Phone>> phones_; // in the order of their boots
    std::vector<std::string> bootErrors_;
    std::string reported_;           // of the device, last
    std::optional<TestResult> test_; // that runs now
    TestResult outside_;             // of any test
    std::optional<Trace> trace_;
    size_t testsRun_ = 0, testsLeftOut_ = 0;
    bool failed_ = false, refused_ = false;
    bool runs_ = false; // run() was called: this is no piece of a script
    size_t held_ = 0, failures_ = 0;
    size_t pictured_ = 0; // failures of which there is a picture
};

// The script that an interpreter's state belongs to.
Script &scriptOf(lua_State *lua);

} // namespace sim
