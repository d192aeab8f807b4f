// The status bar and its items.
#pragma once

#include <UIKit/UIImage.h>
#include <UIKit/UIView.h>
#include <UIKit/UIWindow.h>

// What an item view shows: the image for dark and light surroundings.
@interface _UILegibilityImageSet : NSObject {
@public
    void *_imageSetState;
}
@property (nonatomic, retain) UIImage *image;
@end

@interface UIStatusBarItem : NSObject {
@public
    void *_itemState;
}
@property (nonatomic, readonly) int type;
// The name by which the item's image is looked up; nil for items without one.
@property (nonatomic, readonly) NSString *indicatorName;
@end

@interface UIStatusBarItemView : UIView {
@public
    void *_itemViewState;
}
- (id)initWithItem:(UIStatusBarItem *)item data:(id)data actions:(int)actions style:(id)style;
@property (nonatomic, readonly, retain) UIStatusBarItem *item;
- (_UILegibilityImageSet *)contentsImage;
@end

@interface UIStatusBarForegroundView : UIView {
@public
    void *_foregroundState;
}
@end

@interface _UIScrollsToTopInitiatorView : UIView {
@public
    void *_scrollsToTopState;
}
- (BOOL)_touchShouldProduceReturnEvent;
@end

// Subviews: the background at index 0, the foreground with the item views at index 1.
@interface UIStatusBar : _UIScrollsToTopInitiatorView {
@public
    void *_statusBarState;
}
@end

@interface UIStatusBarWindow : UIWindow {
@public
    void *_statusBarWindowState;
}
@end
