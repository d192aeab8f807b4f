#include "Probe/Calls.h"

#include "Probe/Question.h"

#include <QuartzCore/QuartzCore.h>
#include <Substrate/CydiaSubstrate.h>

namespace probe {

namespace {

struct Row {
    const char *className;
    const char *selector;
    IMP replacement;
};

constexpr size_t kMostRows = 32;
constexpr NSUInteger kMostCalls = 400;

IMP previous[kMostRows];
struct {
    size_t row;
    double time;
} calls[kMostCalls];
NSUInteger callCount, callsAsked;

void note(size_t row) {
    if (callCount < kMostCalls) calls[callCount++] = {row, CACurrentMediaTime()};
}

template <size_t row, typename Result, typename... Arguments>
Result watched(id self, SEL selector, Arguments... arguments) {
    note(row);
    return reinterpret_cast<Result (*)(id, SEL, Arguments...)>(previous[row])(self, selector, arguments...);
}

template <size_t row, typename Result, typename... Arguments>
Row watch(const char *className, const char *selector) {
    static_assert(row < kMostRows);
    return {className, selector, reinterpret_cast<IMP>(&watched<row, Result, Arguments...>)};
}

std::span<const Row> rows() {
    static const Row table[] = {
        watch<0, void, id>("SpringBoard", "applicationDidFinishLaunching:"),
        watch<1, id, id, id, int, id>("UIStatusBarItemView", "initWithItem:data:actions:style:"),
        watch<2, BOOL>("SBUIController", "clickedMenuButton"),
        watch<3, BOOL>("SBUIController", "handleMenuDoubleTap"),
        watch<4, void, id, NSInteger>("SBBannerController", "_presentBannerForContext:reason:"),
        watch<5, void>("SBLockScreenViewController", "_handleDisplayTurnedOff"),
        watch<6, void>("SBLockScreenViewController", "_handleDisplayTurnedOn"),
        watch<7, void, id>("SBLockScreenViewController", "_handleDisplayTurnedOn:"),
        watch<8, void>("SBLockScreenViewController", "prepareForUIUnlock"),
        watch<9, void, int>("SBLockScreenViewController", "finishUIUnlockFromSource:"),
        watch<10, BOOL>("UIStatusBar", "_touchShouldProduceReturnEvent"),
        watch<11, id>("SBIconBadgeView", "init"),
        watch<12, void, id>("SBIconBadgeView", "_resizeForTextImage:"),
        watch<13, void, BOOL>("SBIconView", "_updateAccessoryViewWithAnimation:"),
        watch<14, void>("SBApplication", "willActivate"),
        watch<15, void, BOOL>("SBApplication", "willAnimateDeactivation:"),
        watch<16, void>("SBApplication", "didActivate"),
        watch<17, void>("SpringBoard", "handleMenuDoubleTap"),
    };
    return table;
}

} // namespace

void watchCalls() {
    if (!objc_getClass("SpringBoard")) return;
    for (size_t i = 0; i < rows().size(); ++i) {
        const Row &row = rows()[i];
        Class target = objc_getClass(row.className);
        SEL selector = sel_registerName(row.selector);
        if (target && class_getInstanceMethod(target, selector))
            MSHookMessageEx(target, selector, row.replacement, &previous[i]);
    }
}

NSArray *recordedCalls() {
    NSMutableArray *result = [NSMutableArray array];
    for (NSUInteger i = 0; i < callCount; ++i) {
        const Row &row = rows()[calls[i].row];
        NSMutableDictionary *call = [NSMutableDictionary dictionary];
        [call setObject:[NSString stringWithFormat:@"-[%s %s]", row.className, row.selector] forKey:@"call"];
        [call setObject:number(calls[i].time - calls[0].time) forKey:@"time"];
        [result addObject:call];
    }
    return result;
}

BOOL hasNewCalls() {
    BOOL result = callCount != callsAsked;
    callsAsked = callCount;
    return result;
}

} // namespace probe
