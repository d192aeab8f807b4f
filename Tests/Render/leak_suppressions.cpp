// The font library keeps its patterns by offsets instead of pointers, so the leak sanitizer takes what is in
// use for lost.

#if defined(__has_feature)
#if __has_feature(address_sanitizer)
extern "C" const char *__lsan_default_suppressions();
extern "C" const char *__lsan_default_suppressions() { return "leak:libfontconfig\n"; }
#endif
#endif
