#include "MethodCall.h"

#include "Process/Shared/Requests.h"

namespace sim {

namespace {

// The type without qualifiers.
char kind(const char *type) {
    while (strchr("rnNoORV", *type)) ++type;
    return *type;
}

NSInvocation *prepare(id object, const std::string &name, unsigned arguments) {
    SEL selector = sel_registerName(name.c_str());
    if (![object respondsToSelector:selector])
        throw BadRequest(std::string(object_getClassName(object)) + " has no method '" + name + "'");
    NSMethodSignature *signature = [object methodSignatureForSelector:selector];
    constexpr unsigned kImplicit = 2;
    unsigned wanted = static_cast<unsigned>([signature numberOfArguments]) - kImplicit;
    if (wanted != arguments)
        throw BadRequest("'" + name + "' takes " + std::to_string(wanted) +
                         (wanted == 1 ? " argument, not " : " arguments, not ") + std::to_string(arguments));
    NSInvocation *invocation = [NSInvocation invocationWithMethodSignature:signature];
    [invocation setTarget:object];
    [invocation setSelector:selector];
    return invocation;
}

constexpr NSInteger kFirstArgument = 2;

template <typename T>
void put(NSInvocation *invocation, T value) {
    [invocation setArgument:&value atIndex:kFirstArgument];
}

void setNumber(NSInvocation *invocation, char type, const Value &value) {
    auto whole = value.isInteger() ? value.integer() : static_cast<int64_t>(value.number());
    switch (type) {
    case 'c':
        return put(invocation, static_cast<signed char>(whole));
    case 'C':
        return put(invocation, static_cast<unsigned char>(whole));
    case 'B':
        return put(invocation, whole != 0);
    case 's':
        return put(invocation, static_cast<short>(whole));
    case 'i':
        return put(invocation, static_cast<int>(whole));
    case 'I':
        return put(invocation, static_cast<unsigned>(whole));
    case 'l':
    case 'q':
        return put(invocation, static_cast<long>(whole));
    case 'L':
    case 'Q':
        return put(invocation, static_cast<unsigned long>(whole));
    case 'f':
        return put(invocation, static_cast<float>(value.number()));
    case 'd':
        return put(invocation, value.number());
    case '@':
        return put<id>(invocation, value.isInteger() ? [NSNumber numberWithLongLong:whole]
                                                     : [NSNumber numberWithDouble:value.number()]);
    default:
        throw BadRequest("the method takes no number");
    }
}

void setText(NSInvocation *invocation, char type, const std::string &value) {
    if (type == '*') return put(invocation, value.c_str());
    if (type != '@') throw BadRequest("the method takes no text");
    put<id>(invocation, [NSString stringWithUTF8String:value.c_str()]);
}

template <typename T>
T result(NSInvocation *invocation) {
    T value{};
    [invocation getReturnValue:&value];
    return value;
}

Value plainObject(id object) {
    if (!object) return {};
    if ([object isKindOfClass:[NSString class]]) return [object UTF8String];
    if (![object isKindOfClass:[NSNumber class]])
        throw BadRequest(std::string("the result is an object of class ") + object_getClassName(object));
    char type = kind([object objCType]);
    if (type == 'f' || type == 'd') return [object doubleValue];
    return static_cast<int64_t>([object longLongValue]);
}

// A char is a boolean: that is how the platform spells one.
Value plainResult(NSInvocation *invocation) {
    switch (kind([[invocation methodSignature] methodReturnType])) {
    case 'v':
        return {};
    case 'c':
    case 'C':
        return result<char>(invocation) != 0;
    case 'B':
        return result<bool>(invocation);
    case 's':
        return result<short>(invocation);
    case 'i':
        return result<int>(invocation);
    case 'I':
        return result<unsigned>(invocation);
    case 'l':
    case 'q':
        return result<long>(invocation);
    case 'L':
    case 'Q':
        return result<unsigned long>(invocation);
    case 'f':
        return static_cast<double>(result<float>(invocation));
    case 'd':
        return result<double>(invocation);
    case '*': {
        const char *text = result<const char *>(invocation);
        return text ? Value(text) : Value();
    }
    case '@':
        return plainObject(result<id>(invocation));
    default:
        throw BadRequest("the result is no boolean, number or text");
    }
}

} // namespace

Value callMethod(id object, const std::string &selector, const Value &argument) {
    NSInvocation *invocation = prepare(object, selector, argument.isNull() ? 0 : 1);
    if (!argument.isNull()) {
        char type = kind([[invocation methodSignature] getArgumentTypeAtIndex:kFirstArgument]);
        if (argument.isString()) {
            setText(invocation, type, argument.string());
        } else {
            setNumber(invocation, type, argument);
        }
    }
    [invocation invoke];
    return plainResult(invocation);
}

Value callMethod(id object, const std::string &selector, id argument) {
    NSInvocation *invocation = prepare(object, selector, 1);
    if (kind([[invocation methodSignature] getArgumentTypeAtIndex:kFirstArgument]) != '@')
        throw BadRequest("the method takes no object");
    put(invocation, argument);
    [invocation invoke];
    return plainResult(invocation);
}

} // namespace sim
