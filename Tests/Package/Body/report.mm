// Tells what the simulated body is made of, for comparison with the slices of the device's: the hook table,
// and the methods of the classes named as arguments, one a line, fields separated by tabs.
#include "Tweak/Start/HookTable.h"

#import <Foundation/Foundation.h>

#include <cstdio>
#include <cstdlib>

namespace {

void reportMethods(const char *name, Class target, char mark) {
    unsigned int count = 0;
    Method *methods = class_copyMethodList(target, &count);
    for (unsigned int i = 0; i < count; ++i) {
        std::printf("method\t%s\t%c%s\t%s\n", name, mark, sel_getName(method_getName(methods[i])),
                    method_getTypeEncoding(methods[i]));
    }
    std::free(methods);
}

void reportClass(const char *name) {
    Class target = objc_getClass(name);
    if (!target) return;
    std::printf("class\t%s\t%s\n", name, class_getName(class_getSuperclass(target)));
    reportMethods(name, target, '-');
    reportMethods(name, object_getClass((id)target), '+');
}

} // namespace

int main(int count, char **names) {
    for (const pendix::HookRow &row : pendix::hookTable()) {
        std::printf("row\t%s\t%s\t%s\t%s\n", row.className, row.selector,
                    row.kind == pendix::HookRow::Kind::added ? "added" : "hooked", row.types);
    }
    for (int i = 1; i < count; ++i) reportClass(names[i]);
}
