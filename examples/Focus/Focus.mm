// Focus: icons without news step back, so that the eye finds those that have some.
#import <SpringBoard/SBIcon.h>
#import <Substrate/CydiaSubstrate.h>

static const CGFloat kBack = 0.4;

static void (*updateAccessory)(SBIconView *self, SEL _cmd, BOOL animated);

// The home screen calls it whenever an icon is shown or its badge changes.
static void newUpdateAccessory(SBIconView *self, SEL _cmd, BOOL animated) {
    updateAccessory(self, _cmd, animated);
    self.alpha = [[self icon] badgeValue] != 0 ? 1 : kBack;
}

__attribute__((constructor)) static void start() {
    MSHookMessageEx(objc_getClass("SBIconView"), @selector(_updateAccessoryViewWithAnimation:), (IMP)newUpdateAccessory,
                    (IMP *)&updateAccessory);
}
