// An extension that was compiled with another idea of a platform class than the platform has: its own
// variables lie within those of its superclass.
#import <Foundation/Foundation.h>

@interface UIView : NSObject
@end

@interface MisfitView : UIView {
    int _number;
}
@end

@implementation MisfitView
- (int)number {
    return _number;
}
@end
