// The status bar, its parts, and what the status-bar library adds.
#include "Probe/Question.h"

#include <StatusBar/LSStatusBarItem.h>
#include <UIKit/UIKit.h>

namespace probe {

namespace {

constexpr NSUInteger kForeground = 1;
constexpr StatusBarAlignment kRight = 2;

UIView *statusBar() { return [[UIApplication sharedApplication] statusBar]; }

UIWindow *window() { return [[UIApplication sharedApplication] statusBarWindow]; }

NSArray *itemViews() {
    NSArray *parts = [statusBar() subviews];
    return [parts count] > kForeground ? [[parts objectAtIndex:kForeground] subviews] : nil;
}

id frame() { return rectangle([[UIApplication sharedApplication] statusBarFrame]); }

id windowClass() { return className(window()); }

id windowLevel() { return number([window() windowLevel]); }

id barClass() { return className(statusBar()); }

id parts() {
    NSMutableArray *result = [NSMutableArray array];
    for (UIView *view in [statusBar() subviews]) [result addObject:className(view)];
    return result;
}

id foregroundFrame() {
    NSArray *parts = [statusBar() subviews];
    return [parts count] > kForeground ? rectangle([(UIView *)[parts objectAtIndex:kForeground] frame])
                                       : absent();
}

// Names of pictures at most; nothing that they show.
id items() {
    NSMutableArray *result = [NSMutableArray array];
    for (UIStatusBarItemView *view in itemViews()) {
        NSMutableDictionary *entry = [NSMutableDictionary dictionary];
        [entry setObject:className(view) forKey:@"class"];
        [entry setObject:rectangle(view.frame) forKey:@"frame"];
        if ([view respondsToSelector:@selector(item)]) {
            UIStatusBarItem *item = [view item];
            [entry setObject:number([item type]) forKey:@"type"];
            if ([item indicatorName]) [entry setObject:[item indicatorName] forKey:@"name"];
        }
        [result addObject:entry];
    }
    return result;
}

id touchable() {
    UIView *first = [itemViews() firstObject];
    return first ? flag(first.userInteractionEnabled) : absent();
}

// Whether the library shows an item of which nothing but its name has been set.
id libraryItem() {
    Class items = objc_getClass("LSStatusBarItem");
    if (!items) return absent();
    NSUInteger before = [itemViews() count];
    LSStatusBarItem *item = [[items alloc] initWithIdentifier:@"org.quillhub.pendix.probe" alignment:kRight];
    BOOL shown = [itemViews() count] > before;
    [item release];
    return flag(shown);
}

id libraryItemVisible() {
    LSStatusBarItem *item =
        [[objc_getClass("LSStatusBarItem") alloc] initWithIdentifier:@"org.quillhub.pendix.probe"
                                                           alignment:kRight];
    id answer = item ? flag([item isVisible]) : absent();
    [item release];
    return answer;
}

} // namespace

std::span<const Question> statusBarQuestions() {
    static const Question all[] = {
        {"status_bar.frame", frame},
        {"status_bar.window.class", windowClass, {{"UIApplication", "-statusBarWindow"}}},
        {"status_bar.window.level", windowLevel, {{"UIApplication", "-statusBarWindow"}}},
        {"status_bar.class", barClass, {{"UIApplication", "-statusBar"}}},
        {"status_bar.parts", parts, {{"UIApplication", "-statusBar"}}},
        {"status_bar.foreground.frame", foregroundFrame, {{"UIApplication", "-statusBar"}}},
        {"status_bar.items",
         items,
         {{"UIApplication", "-statusBar"},
          {"UIStatusBarItem", "-type"},
          {"UIStatusBarItem", "-indicatorName"}}},
        {"status_bar.items.touchable", touchable, {{"UIApplication", "-statusBar"}}},
        {"status_bar.library.shown_when_made",
         libraryItem,
         {{"LSStatusBarItem", "-initWithIdentifier:alignment:"}, {"UIApplication", "-statusBar"}}},
        {"status_bar.library.visible_when_made",
         libraryItemVisible,
         {{"LSStatusBarItem", "-initWithIdentifier:alignment:"}, {"LSStatusBarItem", "-isVisible"}}}};
    return all;
}

} // namespace probe
