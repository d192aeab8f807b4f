// A class that grew a variable after the stale plugin was compiled.
#import <Foundation/Foundation.h>

@interface LayoutBase : NSObject {
    void *first;
#ifndef STALE_HEADER
    void *added;
    char last;
#endif
}
@end
