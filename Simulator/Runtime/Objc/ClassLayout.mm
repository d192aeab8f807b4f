#import <Foundation/Foundation.h>

#include "ClassLayout.hpp"

#include <dlfcn.h>
#include <link.h>

#include <algorithm>
#include <climits>
#include <cstdlib>
#include <cstring>

namespace sim {

namespace {

std::string canonical(const char *path) {
    char resolved[PATH_MAX];
    return path && realpath(path, resolved) ? resolved : "";
}

// The loaded file that the address lies in; null for what was made at run time. Unlike dladdr() it looks for
// no symbol, of which each file has thousands.
const link_map *fileOf(const void *address) {
    dl_find_object found;
    return _dl_find_object(const_cast<void *>(address), &found) == 0 ? found.dlfo_link_map : nullptr;
}

const link_map *ownFile() { return fileOf(reinterpret_cast<const void *>(&fileOf)); }

// Most files are known by their canonical path. The program's own has no name in the linker's list.
const link_map *fileAt(const std::string &path) {
    for (const link_map *file = _r_debug.r_map; file; file = file->l_next)
        if (path == file->l_name) return file;
    for (const link_map *file = _r_debug.r_map; file; file = file->l_next)
        if (canonical(file == ownFile() ? "/proc/self/exe" : file->l_name) == path) return file;
    return nullptr;
}

std::vector<Class> classesIn(const link_map *file) {
    if (!file) return {};
    std::vector<Class> all(static_cast<size_t>(objc_getClassList(nullptr, 0)));
    objc_getClassList(all.data(), static_cast<int>(all.size()));
    std::erase_if(all,
                  [&](Class candidate) { return fileOf(reinterpret_cast<const void *>(candidate)) != file; });
    std::sort(all.begin(), all.end(),
              [](Class a, Class b) { return strcmp(class_getName(a), class_getName(b)) < 0; });
    return all;
}

std::vector<Ivar> variablesOf(Class owner) {
    unsigned count = 0;
    Ivar *list = class_copyIvarList(owner, &count);
    std::vector<Ivar> result(list, list + count);
    free(list);
    return result;
}

// Where a subclass's variables may begin at the earliest: behind the last variable, for the compiler uses the
// padding that ends a class. Of a variable that is no plain number or pointer it is only known that it takes
// a byte.
size_t contentEnd(Class owner) {
    if (!owner) return 0;
    auto variables = variablesOf(owner);
    if (variables.empty()) return std::max(contentEnd(class_getSuperclass(owner)), sizeof(Class));
    const char *type = ivar_getTypeEncoding(variables.back());
    NSUInteger size = 1, alignment = 1;
    if (type && strchr("@#:^*cCsSiIlLqQfdB", *type)) NSGetSizeAndAlignment(type, &size, &alignment);
    return static_cast<size_t>(ivar_getOffset(variables.back())) + size;
}

} // namespace

std::vector<Class> classesOf(const std::string &libraryPath) {
    std::string wanted = canonical(libraryPath.c_str());
    return wanted.empty() ? std::vector<Class>() : classesIn(fileAt(wanted));
}

std::vector<Class> classesOfProgram() { return classesIn(ownFile()); }

std::vector<std::string> brokenLayouts(std::span<const Class> classes) {
    std::vector<std::string> sentences;
    for (Class owner : classes) {
        Class parent = class_getSuperclass(owner);
        if (!parent) continue;
        std::string name = class_getName(owner), parentName = class_getName(parent);
        size_t size = class_getInstanceSize(owner), parentSize = class_getInstanceSize(parent);
        if (size < parentSize)
            sentences.push_back(name + " is " + std::to_string(size) + " bytes long, its superclass " +
                                parentName + " " + std::to_string(parentSize));
        size_t begin = contentEnd(parent);
        for (Ivar variable : variablesOf(owner)) {
            auto offset = static_cast<size_t>(ivar_getOffset(variable));
            if (offset >= begin) continue;
            sentences.push_back(name + " keeps " + ivar_getName(variable) + " at byte " +
                                std::to_string(offset) + ", within its superclass " + parentName +
                                ", which reaches to byte " + std::to_string(begin));
        }
    }
    return sentences;
}

} // namespace sim
