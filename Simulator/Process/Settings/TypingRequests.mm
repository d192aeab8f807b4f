// The keyboard.
#include "SettingsRequests.h"

#include "Process/Shared/Screen.h"
#include "UIKit/CoreGraphics/CGGeometry+Further.h"
#include "UIKit/Input/Keyboard.h"
#include "UIKit/Views/FirstResponder.h"

namespace sim {

namespace {

NSString *character(const Value &arguments) {
    return [NSString stringWithUTF8String:arguments["text"].string().c_str()];
}

void needReceiver() {
    if (!firstResponder()) throw BadRequest("nothing takes what is typed");
}

// {"text": of the key, empty for delete}: {"x", "y"}; null when the keyboard shown has no such key.
Value placeKey(const Value &arguments) {
    needReceiver();
    UIKeyboardKey *key = keyboardKey(character(arguments));
    if (!key) return {};
    CGRect frame = presentedOnScreen(key);
    return Object{{"x", CGRectGetMidX(frame)}, {"y", CGRectGetMidY(frame)}};
}

// {"text"}, as from a hardware keyboard
Value type(const Value &arguments) {
    needReceiver();
    typeText(character(arguments));
    return {};
}

Value deleteLast(const Value &) {
    needReceiver();
    typeDelete();
    return {};
}

} // namespace

std::span<const Request> typingRequests() {
    static const Request requests[] = {{"place_key", placeKey}, {"type", type}, {"delete", deleteLast}};
    return requests;
}

} // namespace sim
