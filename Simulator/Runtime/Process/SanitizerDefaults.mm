// What the sanitizers have to know about a simulated process; they call these by name when they start.
// Without them nothing does.
extern "C" {

__attribute__((used, visibility("default"))) const char *__asan_default_options() {
    // Foundation is compiled without frame pointers, so stacks end where it begins. Walking on by its tables
    // costs four times the time of everything else: ASAN_OPTIONS=fast_unwind_on_malloc=0 where a whole stack
    // is wanted.
    return "fast_unwind_on_malloc=1";
}

// The language runtime keeps its tables of classes and methods until the end.
__attribute__((used, visibility("default"))) const char *__lsan_default_suppressions() {
    return "leak:libobjc.so\n";
}

// The suppressions at work are nobody's news.
__attribute__((used, visibility("default"))) const char *__lsan_default_options() {
    return "print_suppressions=0";
}

} // extern "C"

#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#include <initializer_list>
#include <objc/message.h>
#include <objc/runtime.h>
#include <sanitizer/lsan_interface.h>

namespace {

// Foundation's classes make some objects once for the process, when they are first used. Here that is before
// anything of ours is.
__attribute__((constructor)) void startFoundation() {
    __lsan_disable();
    SEL itself = sel_registerName("class");
    for (const char *name : {"NSObject", "NSBundle"}) {
        id made = (id)objc_getClass(name);
        objc_msg_lookup(made, itself)(made, itself);
    }
    __lsan_enable();
}

} // namespace
#endif
#endif
