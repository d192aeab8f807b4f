// What the sanitizers have to know about a simulated process; they call these by name when they start.
// Without them nothing does.
extern "C" {

__attribute__((used, visibility("default"))) const char *__asan_default_options() {
    // Foundation is compiled without frame pointers.
    return "fast_unwind_on_malloc=0";
}

// The language runtime and the font library keep tables until the end.
__attribute__((used, visibility("default"))) const char *__lsan_default_suppressions() {
    return "leak:libobjc.so\nleak:__objc_exec_class\nleak:libfontconfig.so\n";
}

// The suppressions at work are nobody's news.
__attribute__((used, visibility("default"))) const char *__lsan_default_options() {
    return "print_suppressions=0";
}

} // extern "C"
