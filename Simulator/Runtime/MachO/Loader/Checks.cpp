#include "Checks.hpp"

#include "Runtime/Process/Crash.hpp"

#include <cstdlib>
#include <fcntl.h>
#include <sstream>
#include <sys/syscall.h>
#include <unistd.h>

namespace sim {

namespace {

constexpr const char *kPassingNames[] = {"results of messages", "results of functions",
                                         "arguments of methods", "arguments of blocks"};

void writeReport() {
    std::ostringstream line;
    line << "{\"messages\": " << counts().messages << ", \"small values\": {";
    for (size_t i = 0; i < std::size(kPassingNames); ++i)
        line << (i ? ", " : "") << '"' << kPassingNames[i] << "\": " << counts().small[i];
    line << "}, \"imports\": {";
    const char *separator = "";
    for (const auto &[kind, number] : counts().imports) {
        line << separator << '"' << kind << "\": " << number;
        separator = ", ";
    }
    line << "}}\n";
    std::string text = line.str();
    // Not open(), which leads into the device's own files.
    auto file = static_cast<int>(syscall(SYS_openat, AT_FDCWD, getenv("SIM_LOADER_REPORT"),
                                         O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0644));
    if (file < 0) return;
    [[maybe_unused]] ssize_t written = write(file, text.data(), text.size());
    close(file);
}

bool isWhole(uint64_t word, macho::Width width) {
    auto low = static_cast<uint32_t>(word);
    switch (width) {
    case macho::Width::truth:
        return low <= 1;
    case macho::Width::signedHalf:
        return low == static_cast<uint32_t>(static_cast<int16_t>(low));
    case macho::Width::unsignedHalf:
        return low == static_cast<uint16_t>(low);
    case macho::Width::other:
        break;
    }
    return true;
}

} // namespace

Counts &counts() {
    static auto &all = *new Counts;
    return all;
}

void refuseCall(const std::string &reason) {
    noteCrashReason(reason);
    abort();
}

void checkWord(uint64_t word, macho::Width width, Passing how, const char *name) {
    ++counts().small[static_cast<size_t>(how)];
    if (isWhole(word, width)) return;
    std::ostringstream text;
    text << name << ": " << static_cast<uint32_t>(word) << " among the "
         << kPassingNames[static_cast<size_t>(how)]
         << (width == macho::Width::truth ? " where 0 or 1 should be" : " where 16 bits should be");
    refuseCall(text.str());
}

void reportCountsAtExit() {
    if (getenv("SIM_LOADER_REPORT")) atexit(writeReport);
}

} // namespace sim
