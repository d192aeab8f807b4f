#include "Methods.hpp"

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
    if (!class_addMethod(target, selector, implementation, method_getTypeEncoding(method)))
        previous = method_setImplementation(method, implementation);
    return previous;
}

} // namespace sim
