// What the Settings application shows.
#include "PageRows.h"
#include "SettingsRequests.h"

#include "Preferences/Application/SettingsApplication.h"
#include "Process/Shared/Screen.h"
#include "UIKit/Alerts/AlertPanel.h"
#include "UIKit/Images/ImageState.h"
#include "UIKit/UIKit+Further.h"

#include <objc/runtime.h>

namespace sim {

namespace {

Value text(NSString *string) { return string ? Value([string UTF8String]) : Value(""); }

// {"title", "class", "rows"} of the page in front, whatever covers it as an alert.
Value page(const Value &) {
    UIViewController *front = frontPage();
    Array rows;
    if (PSListController *list = frontList())
        for (const auto &row : pageRows(list)) rows.push_back(describeRow(list, row));
    NSString *title = [[front navigationItem] title];
    return Object{{"title", text(title)}, {"class", object_getClassName(front)}, {"rows", rows}};
}

Value alert(const Value &) {
    UIAlertView *top = topmostAlert();
    if (!top) return {};
    Array buttons;
    for (NSInteger i = 0; i < [top numberOfButtons]; ++i) buttons.push_back(text([top buttonTitleAtIndex:i]));
    return Object{{"title", text([top title])}, {"message", text([top message])}, {"buttons", buttons}};
}

bool isFilled(UIView *place) {
    UIImage *image = [static_cast<UIImageView *>(place) image];
    if (!image) return false;
    NSString *file = [NSString stringWithUTF8String:state(image).source.c_str()];
    return [[[file lastPathComponent] stringByDeletingPathExtension] isEqualToString:@"dot"];
}

// A sheet for a code is a page with a text field, and groups that each are a label and the places after it. A
// place that is filled shows an image called "dot". The group that counts is the one that is on screen.
Value sheet(const Value &) {
    UIViewController *front = frontPage();
    if (![[front navigationController] presentingViewController] || frontList()) return {};
    UIView *view = [front view];
    bool field = false, chosen = false;
    int64_t group = -1;
    Object result;
    int64_t dots = 0;
    for (UIView *part in [view subviews]) {
        field = field || [part isKindOfClass:[UITextField class]];
        if ([part isKindOfClass:[UILabel class]]) {
            ++group;
            chosen = CGRectContainsPoint([view bounds], [part center]);
            if (chosen) {
                dots = 0;
                result["group"] = group;
                result["label"] = text([static_cast<UILabel *>(part) text]);
            }
        } else if (chosen && [part isKindOfClass:[UIImageView class]]) {
            dots += isFilled(part);
        }
    }
    if (!field || !result.count("group")) return {};
    result["dots"] = dots;
    result["title"] = text([[front navigationItem] title]);
    result["cancel"] = text([[[front navigationItem] rightBarButtonItem] title]);
    return result;
}

} // namespace

std::span<const Request> pageRequests() {
    static const Request requests[] = {{"page", page}, {"alert", alert}, {"sheet", sheet}};
    return requests;
}

} // namespace sim
