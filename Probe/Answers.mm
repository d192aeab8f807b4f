#include "Probe/Question.h"

#include <objc/runtime.h>

namespace probe {

bool isThere(const Member &member) {
    Class target = objc_getClass(member.className);
    if (target && member.name[0] == '+') target = object_getClass((id)target);
    return target && class_getInstanceMethod(target, sel_registerName(member.name + 1));
}

id answerTo(const Question &question) {
    for (const Member &need : question.needs)
        if (need.name && !isThere(need)) return absent();
    return question.answer();
}

NSNumber *number(double value) { return [NSNumber numberWithDouble:value]; }

NSNumber *flag(BOOL value) { return [NSNumber numberWithBool:value]; }

NSString *text(const char *value) { return [NSString stringWithUTF8String:value ? value : ""]; }

NSArray *rectangle(CGRect rect) {
    const id parts[] = {number(rect.origin.x), number(rect.origin.y), number(rect.size.width),
                        number(rect.size.height)};
    return [NSArray arrayWithObjects:parts count:4];
}

NSArray *size(CGSize size) {
    const id parts[] = {number(size.width), number(size.height)};
    return [NSArray arrayWithObjects:parts count:2];
}

NSString *className(id object) { return object ? text(object_getClassName(object)) : @"nothing"; }

NSString *absent() { return @"absent"; }

} // namespace probe
