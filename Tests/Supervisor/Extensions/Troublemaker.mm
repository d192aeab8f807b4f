// An extension that does what it is told to in the settings file, for tests of what happens to a device then:
//   crash_after, killall_after, exit_after   seconds from its loading, fingers or no
#import <Foundation/Foundation.h>

#include <stdlib.h>

@interface Troublemaker : NSObject
@end

@implementation Troublemaker

+ (void)load {
    @autoreleasepool {
        NSDictionary *orders =
            [NSDictionary dictionaryWithContentsOfFile:
                              @"/var/mobile/Library/Preferences/org.quillhub.PendixSettings.plist"];
        struct {
            NSString *key;
            SEL action;
        } const known[] = {{@"crash_after", @selector(crash)},
                           {@"killall_after", @selector(killHomeScreen)},
                           {@"exit_after", @selector(leave)}};
        for (const auto &order : known)
            if (NSNumber *delay = [orders objectForKey:order.key])
                [[[self new] autorelease] performSelector:order.action
                                               withObject:nil
                                               afterDelay:[delay doubleValue]
                                                  inModes:[NSArray arrayWithObject:NSRunLoopCommonModes]];
    }
}

- (void)crash {
    abort();
}

- (void)killHomeScreen {
    system("killall SpringBoard");
}

- (void)leave {
    exit(3);
}

@end
