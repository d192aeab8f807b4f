// @NAME@: tells the system log which applications are opened from the home screen.
#import <SpringBoard/SBApplication.h>
#import <Substrate/CydiaSubstrate.h>

// What the hooked method did before.
static void (*willActivate)(SBApplication *self, SEL _cmd);

static void newWillActivate(SBApplication *self, SEL _cmd) {
    willActivate(self, _cmd);
    NSLog(@"<@NAME@> Opening %@", [self displayName]);
}

__attribute__((constructor)) static void start() {
    MSHookMessageEx(objc_getClass("SBApplication"), @selector(willActivate), (IMP)newWillActivate,
                    (IMP *)&willActivate);
}
