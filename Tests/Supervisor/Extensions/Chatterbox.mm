// An extension that writes so many lines to the system log each second as `lines` in the settings file says,
// numbered from 1.
#import <Foundation/Foundation.h>

@interface Chatterbox : NSObject {
    int _lines, _said;
}
@end

@implementation Chatterbox

+ (void)load {
    @autoreleasepool {
        NSDictionary *orders =
            [NSDictionary dictionaryWithContentsOfFile:
                              @"/var/mobile/Library/Preferences/org.quillhub.PendixSettings.plist"];
        Chatterbox *chatterbox = [self new];
        chatterbox->_lines = [[orders objectForKey:@"lines"] intValue];
        [NSTimer scheduledTimerWithTimeInterval:1
                                         target:chatterbox
                                       selector:@selector(talk)
                                       userInfo:nil
                                        repeats:YES];
    }
}

- (void)talk {
    for (int i = 0; i < _lines; ++i) NSLog(@"This is what I have to say: %d", ++_said);
}

@end
