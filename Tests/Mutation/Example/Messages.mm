// Messages, properties, blocks and the platform's own constants. Compiled, not run.
#import <Foundation/Foundation.h>

@interface Lamp : NSObject {
    NSString *_name;
}
@property (nonatomic, copy) NSString *name;
- (BOOL)shineFrom:(double)start to:(double)end;
@end

static NSString *const kName = @"lamp";

@implementation Lamp

@synthesize name = _name;

- (BOOL)shineFrom:(double)start to:(double)end {
    if (NSString *name = self.name) NSLog(@"%@ %@", name, kName);
    [self performSelector:@selector(init) withObject:self.name afterDelay:2.0];
    void (^later)(BOOL) = ^(BOOL finished) {
        if (finished) self.name = nil;
    };
    later(YES);
    return [self.name compare:kName options:NSCaseInsensitiveSearch] == NSOrderedSame && end > start;
}

- (void)dealloc {
    [_name release];
    [super dealloc];
}

@end
