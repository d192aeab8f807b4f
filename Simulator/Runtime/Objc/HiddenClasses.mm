// The ways of finding a class by its name, of the runtime and of Foundation, as the program and every library
// in it call them: hidden classes are not found. The language runtime's own look-ups, for superclasses and
// for classes that code names in its text, find them still.
#import <Foundation/Foundation.h>

#include "HiddenClasses.hpp"

#include "Availability.hpp"

#include <dlfcn.h>

#include <cstring>
#include <set>
#include <string>

#define INTERPOSED __attribute__((visibility("default")))

namespace {

// Classes are looked up before the first constructor has run and after the last destructor; it is made when
// the first class is hidden and never goes.
constinit std::set<std::string, std::less<>> *hidden = nullptr;

// Says at a glance that a name is not among them, as for nearly all that are looked up.
constexpr size_t kMarks = 1024;
constinit bool marked[kMarks] = {};

bool &markOf(std::string_view name) {
    constexpr size_t kStep = 31;
    size_t last = name.empty() ? 0 : static_cast<unsigned char>(name.back());
    return marked[(name.size() * kStep + last) % kMarks];
}

bool isHidden(const char *name) {
    if (!hidden || !name) return false;
    std::string_view text(name);
    return markOf(text) && hidden->contains(text);
}

template <typename Function>
Function *next(Function *, const char *name) {
    return reinterpret_cast<Function *>(dlsym(RTLD_NEXT, name));
}

// Where the library lies that has this address; nullptr: in none. Unlike dladdr it does not look for a
// symbol.
const void *libraryAt(void *address) {
    dl_find_object found;
    return _dl_find_object(address, &found) == 0 ? found.dlfo_map_start : nullptr;
}

// Whether the caller at `address` is the language runtime itself.
bool isRuntime(void *address) {
    static const void *const runtime = libraryAt(dlsym(RTLD_NEXT, "objc_getClass"));
    return libraryAt(address) == runtime;
}

#define HIDDEN_FROM_CALLER(name) (isHidden(name) && !isRuntime(__builtin_return_address(0)))

} // namespace

extern "C" {

INTERPOSED Class objc_getClass(const char *name) {
    static const auto real = next(objc_getClass, "objc_getClass");
    return HIDDEN_FROM_CALLER(name) ? Nil : real(name);
}

INTERPOSED Class objc_lookUpClass(const char *name) {
    static const auto real = next(objc_lookUpClass, "objc_lookUpClass");
    return HIDDEN_FROM_CALLER(name) ? Nil : real(name);
}

INTERPOSED Class objc_getMetaClass(const char *name) {
    static const auto real = next(objc_getMetaClass, "objc_getMetaClass");
    return HIDDEN_FROM_CALLER(name) ? Nil : real(name);
}

// What the compiler makes of a class that code names in its text; inside the runtime it is a jump to
// objc_lookUpClass, which could not tell who asks.
INTERPOSED Class objc_lookup_class(const char *name) { return sim::findHiddenClass(name); }

INTERPOSED Class NSClassFromString(NSString *name) {
    static const auto real = next(NSClassFromString, "NSClassFromString");
    return isHidden([name UTF8String]) ? Nil : real(name);
}

} // extern "C"

namespace sim {

Class findHiddenClass(const char *name) {
    static const auto real = next(objc_lookUpClass, "objc_lookUpClass");
    return real(name);
}

void hideClass(const std::string &name) {
    if (!hidden) hidden = new std::set<std::string, std::less<>>;
    hidden->insert(name);
    markOf(name) = true;
}

} // namespace sim
