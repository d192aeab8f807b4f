// The crash report of a simulated process, written by the signal handler for whoever started the process.
#pragma once

#include <string_view>

namespace sim {

// On a fatal signal writes to `descriptor` a report and then dies of that signal:
//
//     signal SIGSEGV
//     reason TEXT            (when one was noted)
//     frame PATH+0xOFFSET    (a line a stack frame, innermost first)
//
// The offset is the address in the file that addr2line and its like ask for; of a caller it is that of the
// last byte of the call, so that the call's own line is found. Where a sanitizer watches, only SIGABRT is
// handled: of the others it tells more.
void installCrashHandler(int descriptor);

// What the report is to say of the cause; cut to 1000 bytes, line breaks become spaces.
void noteCrashReason(std::string_view text);

} // namespace sim
