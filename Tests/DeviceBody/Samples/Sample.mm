// An extension for a phone, small and, by the macro that it is compiled with, wrong in one way. What the
// loader of the simulated processes has to refuse, or to notice while it runs.
#import <UIKit/UIKit.h>

#include <Darwin/dlfcn.h>
#include <objc/runtime.h>
#include <stdio.h>

extern "C" {
void noSuchFunction(void);
IMP method_getImplementation(Method method);
}

@protocol SampleProtocol
- (void)take:(BOOL)truth;
@end

@interface NSObject (Sample)
- (BOOL)oddTruth;
@end

@interface SampleBase : NSObject {
    int _count;
    CGRect _place;
}
@end
@implementation SampleBase
- (int)count {
    return ++_count;
}
@end

@interface SampleClass : SampleBase <SampleProtocol> {
    id _more;
}
+ (id)made;
@end

@implementation SampleClass
+ (id)made {
    return [[self alloc] init];
}
- (void)take:(BOOL)truth {
    if (truth) NSLog(@"<Sample> %d taken by %@, %.2f", [self count], [self class], 1.5);
}
#ifdef PACKED_METHOD
- (void)a:(id)a b:(id)b c:(id)c d:(id)d e:(id)e f:(id)f g:(int)g {
    NSLog(@"%d", g);
}
#endif
#ifdef VARIABLE_METHOD
+ (instancetype)stringWithFormat:(NSString *)format, ... {
    return nil;
}
#endif
#ifdef LOAD_METHOD
+ (void)load {
    NSLog(@"too early");
}
#endif
@end

@implementation NSNumber (Sample)
- (id)sampleOfCategory {
    return self;
}
@end

// On a class of the simulator's own: a method of instances that it has, and one of the class.
@interface UIView (Sample)
+ (int)sampleOfClass;
@end
@implementation UIView (Sample)
+ (int)sampleOfClass {
    return 7;
}
- (NSString *)description {
    return @"<Sample> replaced by a category";
}
@end

#ifdef SECOND_CLASS
@interface UISlider : NSObject
@end
@implementation UISlider
@end
@interface NSScanner : NSObject
@end
@implementation NSScanner
@end
#endif

#ifdef MISSING_CLASS
@interface NoSuchClass : NSObject
@end
#endif

static int oddTruth(id, SEL) { return 2; }

extern void (^sampleBlock)(BOOL);
__attribute__((used)) void (^sampleBlock)(BOOL) = ^(BOOL truth) {
    if (truth) NSLog(@"<Sample> a block");
};

// A function that is looked for, one that there is not, a function and a number that are imported.
static void logWhatIsFound() {
    auto *ask = reinterpret_cast<BOOL (*)(void)>(dlsym(RTLD_DEFAULT, "UIAccessibilityIsReduceMotionEnabled"));
    bool none = !dlsym(RTLD_DEFAULT, "noSuchFunction");
    CGRect place = UIAccessibilityConvertFrameToScreenCoordinates(CGRectMake(0, 0, 3, 0), nil);
    NSLog(@"<Sample> %d, %d, %d, %d", ask && !ask(), none, static_cast<int>(place.size.width),
          static_cast<int>(UIAccessibilityTraitHeader >> 14));
}

static void run() {
    logWhatIsFound();
    [[SampleClass made] take:YES];
    NSLog(@"%@, which adds %d", [[[UIView alloc] init] autorelease], [UIView sampleOfClass]);
#ifdef MISSING_FUNCTION
    noSuchFunction();
#endif
#ifdef MISSING_CLASS
    [NoSuchClass class];
#endif
#ifdef VARIABLE_MESSAGE
    [NSSet performSelector:@selector(setWithObjects:) withObject:nil];
#endif
#ifdef VARIABLE_FUNCTION
    char text[8];
    snprintf(text, sizeof text, "%d", 5);
#endif
#ifdef TEXT_OF_OTHERS
    NSLog(@"\u20ac");
#endif
#ifdef ODD_RESULT
    class_addMethod([NSObject class], @selector(oddTruth), reinterpret_cast<IMP>(oddTruth), "B@:");
    if ([[SampleClass made] oddTruth]) NSLog(@"odd");
#else
    (void)oddTruth;
#endif
#ifdef ODD_ARGUMENT
    using Take = void (*)(id, SEL, unsigned);
    Method method = class_getInstanceMethod([SampleClass class], @selector(take:));
    reinterpret_cast<Take>(method_getImplementation(method))([SampleClass made], @selector(take:), 0x100);
#endif
#ifdef ODD_BLOCK
    id kept = [[SampleClass made] autorelease];
    id copy = [^(BOOL truth) {
        if (truth) NSLog(@"%@", kept);
    } copy];
    struct Literal {
        void *kind;
        int flags, reserved;
        void (*code)(void *, unsigned);
    };
    static_cast<Literal *>((void *)copy)->code((void *)copy, 0x200);
#endif
}

#ifdef NOTHING_RUNS
__attribute__((used))
#else
__attribute__((constructor))
#endif
static void
initialize() {
    @autoreleasepool {
        run();
    }
}
