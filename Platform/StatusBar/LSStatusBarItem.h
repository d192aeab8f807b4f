// The status-bar library's item.
#pragma once

#import <Foundation/Foundation.h>

typedef int StatusBarAlignment;
enum { StatusBarAlignmentLeft = 1, StatusBarAlignmentRight = 2, StatusBarAlignmentCenter = 4 };

@interface LSStatusBarItem : NSObject {
@public
    void *_lsItemState;
}
// Raises for a nil identifier, no alignment, or a second item of the identifier with another alignment.
- (id)initWithIdentifier:(NSString *)identifier alignment:(StatusBarAlignment)alignment;
@property (nonatomic, getter=isVisible) BOOL visible; // YES until set
// Looked up as Black_NAME, LockScreen_NAME and so on among the system's images.
// Raises for an item in the centre.
@property (nonatomic, retain) NSString *imageName;
@property (nonatomic, readonly) StatusBarAlignment alignment;
@end
