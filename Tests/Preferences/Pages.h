// Pages to be tested, on a screen of their own.
#pragma once

#include "UIKit/Harness.h"

#include <Preferences/Preferences.h>

#include <functional>
#include <string>

// Notes "NAME will appear" and so on.
@interface NotingPage : UIViewController {
@public
    std::string name;
    NSUInteger orientations; // a mask; 0: the usual ones
}
@end

// A list whose specifiers a function makes, and whose values are in a dictionary by the specifiers' names.
// Notes what is set and pressed.
@interface TestList : PSListController {
@public
    std::function<NSArray *(TestList *)> build;
    NSMutableDictionary *values;
}
- (id)valueOf:(PSSpecifier *)specifier;
- (void)setValue:(id)value of:(PSSpecifier *)specifier;
- (void)press:(PSSpecifier *)specifier;
@end

namespace harness {

NotingPage *makePage(const std::string &name);
// A window of the application with that root on screen; it lives as long as the process.
UIWindow *show(UIViewController *root);
// The list on screen in a navigation controller.
TestList *showList(std::function<NSArray *(TestList *)> build);

// A row of the list with its accessors.
PSSpecifier *makeRow(TestList *list, NSString *name, PSCellType cell, Class detail = Nil);
PSSpecifier *makeGroup(NSString *footer);
NSString *text(const std::string &text);

// Presses the row in its middle, or the control at its end.
void tapRow(PSListController *list, NSInteger index);
void tapControl(PSListController *list, NSInteger index);
CGPoint centreOf(UIView *view);
// The views of that class below `view`, in drawing order.
std::vector<UIView *> viewsOf(UIView *view, Class kind);

} // namespace harness
