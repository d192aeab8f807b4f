#import "LayoutBase.h"

@interface StaleChild : LayoutBase {
    void *own;
    int number;
}
@end

@implementation StaleChild
@end

// Has no variable to lie in the wrong place, but too little room for its superclass's.
@interface StaleEmptyChild : LayoutBase
@end

@implementation StaleEmptyChild
@end

@interface StaleGrandchild : StaleChild {
    int third;
}
@end

@implementation StaleGrandchild
@end

@interface StandaloneClass : NSObject {
    BOOL flag;
}
@end

@implementation StandaloneClass
@end
