#include "Saboteur.h"

#include <BiometricKit/BiometricKit.h>
#include <SpringBoard/SBApplication.h>
#include <Substrate/CydiaSubstrate.h>

#include <math.h>

// What the extension adds to it.
@interface SpringBoard (Sabotage)
- (void)unlockPendix:(int)page;
@end

namespace saboteur {

namespace {

UIView *add(Class type, NSInteger tag, CGRect frame) {
    UIView *view = [[[type alloc] initWithFrame:frame] autorelease];
    view.tag = tag;
    [overlay() addSubview:view];
    return view;
}

UIView *panel() { return [overlay() viewWithTag:3]; }

UIView *strip() {
    for (UIView *view in [panel() viewWithTag:1].subviews)
        if ([view isKindOfClass:[UIScrollView class]]) return view;
    return nil;
}

NSMutableArray *badgeList() { return variable<NSMutableArray *>("_ZN6pendix5datasE"); }

void secondPanel() { add([UIView class], 3, CGRectMake(10, 100, 50, 50)); }
void secondOverlay() {
    UIWindow *window = [[UIWindow alloc] initWithFrame:CGRectMake(0, 0, 10, 10)];
    window.userInteractionEnabled = NO;
    window.hidden = NO;
}
void leakWindows() {
    for (int i = 0; i < 5; ++i) {
        UIWindow *window = [[UIWindow alloc] initWithFrame:CGRectMake(0, 0, 10, 10)];
        window.userInteractionEnabled = NO;
    }
}
void leaveView() { add([UIView class], 2, CGRectMake(10, 100, 50, 50)); }
void takeTouches() { overlay().userInteractionEnabled = YES; }
void keepBackdrop() { [overlay() viewWithTag:21].alpha = 0.5; }

void showList() { strip().alpha = 1; }
void showName() {
    auto *label = (UILabel *)add([UILabel class], 0, CGRectMake(10, 10, 100, 20));
    label.text = @"Mail";
    [panel() addSubview:label];
}

// The keypad's title.
void sayName() {
    ((UIView *)[[panel() viewWithTag:46].subviews objectAtIndex:0]).accessibilityLabel = @"Mail";
}

void unlock() {
    constexpr int kKeypad = 46;
    [springBoard() unlockPendix:kKeypad];
}
// As the panel does it that is not to be used.
SBApplication *mail() {
    return [[objc_getClass("SBApplicationController") sharedInstance]
        applicationWithBundleIdentifier:@"com.apple.mobilemail"];
}
void clearBadge() { [mail() setBadge:nil]; }
void openMail() { [springBoard() launchApplicationWithIdentifier:@"com.apple.mobilemail" suspended:NO]; }
void armLock() { variable<BOOL>("_ZN6pendix12needPasscodeE") = YES; }

void doubleEntry() { [badgeList() addObject:[badgeList() objectAtIndex:0]]; }
void forgetEntry() { [badgeList() removeAllObjects]; }
void doubleItem() {
    ((UIView *)[strip().subviews objectAtIndex:0]).layer.name =
        ((UIView *)[strip().subviews objectAtIndex:1]).layer.name;
}

void hideIndicator() { variable<LSStatusBarItem *>("_ZN6pendix13statusbaritemE").visible = NO; }

void showIndicator() { variable<LSStatusBarItem *>("_ZN6pendix13statusbaritemE").visible = YES; }

void timer(NSTimeInterval interval, const char *selector) {
    [NSTimer scheduledTimerWithTimeInterval:interval
                                     target:springBoard()
                                   selector:sel_registerName(selector)
                                   userInfo:nil
                                    repeats:YES];
}
void secondPoll() { timer(1.0, "preferenceChangesByMe"); }
void strayTimer() { timer(0.5, "liveClock"); }
// Runs on, for the flag that ends it stays up.
void strayFollower() { timer(0.1, "alphaStatusBar:"); }
void secondObserver() { [[[BiometricKit manager] delegate] addObserver:springBoard()]; }

void raise() { [NSException raise:NSInternalInconsistencyException format:@"on purpose"]; }
void callUnknown() { [springBoard() performSelector:sel_registerName("noSuchMethod")]; }
void hookUnknown() {
    IMP previous;
    MSHookMessageEx([UIView class], sel_registerName("noSuchMethod"), (IMP)raise, &previous);
}
void addRecognizer() {
    UIView *view = [overlay() viewWithTag:-1];
    [view addGestureRecognizer:[[[UITapGestureRecognizer alloc] init] autorelease]];
}

void breakNumber() { panel().alpha = (CGFloat)NAN; }
void moveOff() { panel().frame = CGRectMake(300, 700, 200, 100); }
void stackItems() {
    NSArray *items = strip().subviews;
    ((UIView *)[items objectAtIndex:1]).frame = ((UIView *)[items objectAtIndex:0]).frame;
}

void writeKey() {
    NSString *path = @"/var/mobile/Library/Preferences/org.quillhub.PendixSettings.plist";
    NSMutableDictionary *settings = [NSMutableDictionary dictionaryWithContentsOfFile:path];
    [settings setObject:@"white" forKey:@"tint"];
    [settings writeToFile:path atomically:YES];
}

} // namespace

std::span<const Act> acts() {
    static const Act list[] = {{"second panel", secondPanel},
                               {"second overlay", secondOverlay},
                               {"leak windows", leakWindows},
                               {"leave view", leaveView},
                               {"take touches", takeTouches},
                               {"keep backdrop", keepBackdrop},
                               {"show list", showList},
                               {"show name", showName},
                               {"say name", sayName},
                               {"unlock", unlock},
                               {"clear badge", clearBadge},
                               {"open mail", openMail},
                               {"arm lock", armLock},
                               {"double entry", doubleEntry},
                               {"forget entry", forgetEntry},
                               {"double item", doubleItem},
                               {"hide indicator", hideIndicator},
                               {"show indicator", showIndicator},
                               {"second poll", secondPoll},
                               {"stray timer", strayTimer},
                               {"stray follower", strayFollower},
                               {"second observer", secondObserver},
                               {"raise", raise},
                               {"call unknown", callUnknown},
                               {"hook unknown", hookUnknown},
                               {"add recogniser", addRecognizer},
                               {"break number", breakNumber},
                               {"move off", moveOff},
                               {"stack items", stackItems},
                               {"write key", writeKey}};
    return list;
}

} // namespace saboteur
