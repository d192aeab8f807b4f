#include "Methods.hpp"

// The runtime's own; it has no declaration in its headers.
extern "C" void __objc_update_dispatch_table_for_class(Class changed);

namespace sim {

void finishConstruction(Class target) {
    constexpr size_t kInfoWord = 4;
    constexpr unsigned long kInConstruction = 0x10;
    reinterpret_cast<unsigned long *>(target)[kInfoWord] &= ~kInConstruction;
}

IMP replaceMethod(Class target, SEL selector, IMP implementation) {
    finishConstruction(target);
    Method method = class_getInstanceMethod(target, selector);
    IMP previous = method_getImplementation(method);
    if (class_addMethod(target, selector, implementation, method_getTypeEncoding(method))) return previous;
    previous = method_setImplementation(method, implementation);
    // Setting alone leaves the old implementation in the tables of some subclasses that are in use.
    __objc_update_dispatch_table_for_class(target);
    return previous;
}

} // namespace sim
