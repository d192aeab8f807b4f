// The icons of the home screen, as models and as views.
#pragma once

#include <UIKit/UIKit.h>

@class SBApplication, SBFolder;

@interface SBIcon : NSObject {
@public
    void *_iconState;
}
- (NSString *)nodeIdentifier;
- (NSInteger)badgeValue;
- (BOOL)isFolderIcon;
- (NSString *)displayName;
@end

@interface SBLeafIcon : SBIcon
@end

@interface SBApplicationIcon : SBLeafIcon
- (SBApplication *)application;
@end

@interface SBFolderIcon : SBIcon
- (SBFolder *)folder;
@end

@interface SBFolder : NSObject {
@public
    void *_folderState;
}
// Every icon inside, nested ones too.
- (NSSet *)allIcons;
- (NSString *)displayName;
@end

@interface SBIconModel : NSObject {
@public
    void *_iconModelState;
}
// nil for an identifier without an icon.
- (SBIcon *)expectedIconForDisplayIdentifier:(NSString *)identifier;
- (SBIcon *)leafIconForIdentifier:(NSString *)identifier;
@end

@interface SBIconController : NSObject {
@public
    void *_iconControllerState;
}
+ (instancetype)sharedInstance;
- (SBIconModel *)model;
@end

@interface SBIconImageView : UIView {
@public
    void *_iconImageViewState;
}
- (UIImage *)contentsImage;
@end

@interface SBIconView : UIView {
@public
    void *_iconViewState;
}
// In points, the room of the name below the image included: 60 × 74 on iPhone, 76 × 93 on iPad.
+ (CGSize)defaultIconSize;
- (SBIcon *)icon;
- (SBIconImageView *)_iconImageView;
- (void)_updateAccessoryViewWithAnimation:(BOOL)animated;
@end

@interface SBIconViewMap : NSObject {
@public
    void *_viewMapState;
}
+ (instancetype)homescreenMap;
// nil for a nil icon or one that has no view.
- (SBIconView *)iconViewForIcon:(SBIcon *)icon;
- (SBIconView *)mappedIconViewForIcon:(SBIcon *)icon;
@end

@interface SBIconBadgeView : UIView {
@public
    void *_badgeState;
}
- (void)_resizeForTextImage:(UIImage *)image;
+ (UIFont *)_textFont;
+ (UIImage *)_checkoutBackgroundImage;
+ (UIImage *)_checkoutImageForText:(NSString *)text highlighted:(BOOL)highlighted;
@end
