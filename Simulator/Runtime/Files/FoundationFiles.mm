#import <Foundation/Foundation.h>

#include "FoundationFiles.hpp"

#include "PropertyListBridge.hpp"
#include "Runtime/Objc/Methods.hpp"
#include "Runtime/Values/PropertyList.hpp"
#include "Sandbox.hpp"

#include <cstdio>

namespace {

struct Watch {
    std::string path; // resolved
    sim::FileCounts counts;
};

Watch &watch() {
    static Watch watched;
    return watched;
}

bool isWatched(const std::string &path) {
    return !watch().path.empty() && sim::resolvePath(path) == watch().path;
}

// The parsed file when it holds one of `wanted`, otherwise nil.
id readFile(NSString *path, Class wanted) {
    if (!path) return nil;
    std::string name = [path UTF8String];
    auto bytes = sim::readWholeFile(name);
    if (!bytes) return nil;
    if (isWatched(name)) ++watch().counts.reads;
    sim::ObjectBuilder builder;
    if (!sim::readPropertyList(*bytes, builder, nullptr)) return nil;
    id content = builder.take();
    return [content isKindOfClass:wanted] ? content : nil;
}

bool overwrite(const std::string &path, const std::string &text) {
    FILE *file = fopen(path.c_str(), "we");
    if (!file) return false;
    bool written = fwrite(text.data(), 1, text.size(), file) == text.size();
    return fclose(file) == 0 && written;
}

BOOL writeToFile(id self, SEL, NSString *path, BOOL atomically) {
    auto value = sim::valueFromObject(self);
    if (!value || !path) return NO;
    std::string name = [path UTF8String], text = sim::toXmlPropertyList(*value);
    if (!(atomically ? sim::writeFileAtomically(name, text) : overwrite(name, text))) return NO;
    if (isWatched(name)) ++watch().counts.writes;
    return YES;
}

id dictionaryWithContentsOfFile(Class self, SEL, NSString *path) {
    id content = readFile(path, [NSDictionary class]);
    if (!content || self == [NSDictionary class]) return content;
    return [self dictionaryWithDictionary:content];
}

id initDictionary(id self, SEL, NSString *path) {
    if (id content = readFile(path, [NSDictionary class])) return [self initWithDictionary:content];
    [self release];
    return nil;
}

id arrayWithContentsOfFile(Class self, SEL, NSString *path) {
    id content = readFile(path, [NSArray class]);
    if (!content || self == [NSArray class]) return content;
    return [self arrayWithArray:content];
}

id initArray(id self, SEL, NSString *path) {
    if (id content = readFile(path, [NSArray class])) return [self initWithArray:content];
    [self release];
    return nil;
}

} // namespace

namespace sim {

void installPropertyLists() {
    struct {
        Class target;
        SEL selector;
        IMP implementation;
    } const methods[] = {
        {object_getClass([NSDictionary class]), @selector(dictionaryWithContentsOfFile:),
         reinterpret_cast<IMP>(dictionaryWithContentsOfFile)},
        {[NSDictionary class], @selector(initWithContentsOfFile:), reinterpret_cast<IMP>(initDictionary)},
        {[NSDictionary class], @selector(writeToFile:atomically:), reinterpret_cast<IMP>(writeToFile)},
        {object_getClass([NSArray class]), @selector(arrayWithContentsOfFile:),
         reinterpret_cast<IMP>(arrayWithContentsOfFile)},
        {[NSArray class], @selector(initWithContentsOfFile:), reinterpret_cast<IMP>(initArray)},
        {[NSArray class], @selector(writeToFile:atomically:), reinterpret_cast<IMP>(writeToFile)},
    };
    for (const auto &method : methods) replaceMethod(method.target, method.selector, method.implementation);
}

void watchFile(const std::string &devicePath) { watch().path = resolvePath(devicePath); }
FileCounts fileCounts() { return watch().counts; }
void resetFileCounts() { watch().counts = {}; }

} // namespace sim
