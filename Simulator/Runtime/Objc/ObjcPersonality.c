// Lets C++ exceptions pass through Objective-C++ frames: gcc's personality routine knows only its own kind
// and ends the process on any other, so a C++ exception is handed to the C++ routine instead.
#include <dlfcn.h>
#include <stdint.h>
#include <unwind.h>

typedef _Unwind_Reason_Code (*Personality)(int, _Unwind_Action, uint64_t, struct _Unwind_Exception *,
                                           struct _Unwind_Context *);

extern _Unwind_Reason_Code __gxx_personality_v0(int, _Unwind_Action, uint64_t, struct _Unwind_Exception *,
                                                struct _Unwind_Context *);

// "GNUCC++" with the last byte left open: a primary or a dependent C++ exception.
static const uint64_t kCxxExceptionClass = 0x474e5543432b2b00;

__attribute__((visibility("default"))) _Unwind_Reason_Code
__gnu_objc_personality_v0(int version, _Unwind_Action actions, uint64_t exceptionClass,
                          struct _Unwind_Exception *exception, struct _Unwind_Context *context) {
    if (exceptionClass >> 8 == kCxxExceptionClass >> 8)
        return __gxx_personality_v0(version, actions, exceptionClass, exception, context);
    static Personality original;
    if (!original) original = (Personality)dlsym(RTLD_NEXT, "__gnu_objc_personality_v0");
    return original(version, actions, exceptionClass, exception, context);
}
