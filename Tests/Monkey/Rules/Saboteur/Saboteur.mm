#include "Saboteur.h"

#include <string_view>

@interface Saboteur : NSObject
@end

@implementation Saboteur

+ (void)load {
    @autoreleasepool {
        NSDictionary *settings = [self settings];
        if ([settings objectForKey:@"sabotage"])
            [[[self new] autorelease] performSelector:@selector(act:)
                                           withObject:[settings objectForKey:@"sabotage"]
                                           afterDelay:[[settings objectForKey:@"sabotage_at"] doubleValue]];
    }
}

+ (NSDictionary *)settings {
    return [NSDictionary
        dictionaryWithContentsOfFile:@"/var/mobile/Library/Preferences/org.quillhub.PendixSettings.plist"];
}

- (void)act:(NSString *)name {
    for (auto list : {saboteur::acts(), saboteur::hookActs(), saboteur::sightActs()})
        for (const auto &act : list)
            if (std::string_view(act.name) == [name UTF8String]) return act.run();
    [NSException raise:NSInvalidArgumentException format:@"no act '%@'", name];
}

@end
