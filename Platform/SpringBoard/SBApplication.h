// Applications and the switcher's list of them.
#pragma once

#import <Foundation/Foundation.h>

@interface SBApplication : NSObject {
@public
    void *_sbApplicationState;
}
- (NSString *)bundleIdentifier;
- (NSString *)displayName;
- (id)badgeNumberOrString;
// A number, a string, or nil to clear.
- (void)setBadge:(id)badge;
- (int)pid; // 0 or less when it does not run
- (BOOL)isRunning;
- (void)deactivate;
- (id)_process;
- (NSString *)_baseAppSnapshotPath;
- (void)willActivate;
- (void)willAnimateDeactivation:(BOOL)animated;
@end

// Before 8.0.
@interface SBApplication (DisplayIdentifier)
- (NSString *)displayIdentifier;
@end

@interface FBApplicationProcess : NSObject {
@public
    void *_processState;
}
- (void)_queue_processDidExit;
@end

@interface SBApplicationController : NSObject {
@public
    void *_applicationControllerState;
}
+ (instancetype)sharedInstance;
@end

// Before 8.0.
@interface SBApplicationController (DisplayIdentifier)
- (SBApplication *)applicationWithDisplayIdentifier:(NSString *)identifier;
@end

// From 8.0 on.
@interface SBApplicationController (BundleIdentifier)
- (SBApplication *)applicationWithBundleIdentifier:(NSString *)identifier;
@end

@interface SBDisplayItem : NSObject <NSCopying> {
@public
    void *_displayItemState;
}
- (NSString *)displayIdentifier;
- (NSString *)type;
@end

@interface SBDisplayLayout : NSObject <NSCopying> {
@public
    void *_displayLayoutState;
}
- (NSArray *)displayItems;
@end

@interface SBAppSwitcherModel : NSObject {
@public
    NSMutableArray *_recentDisplayIdentifiers; // strings; before 8.0, nil from then on
    NSMutableArray *_recentDisplayLayouts;     // display layouts; from 8.0 on, nil before
}
+ (instancetype)sharedInstance;
// A display identifier (7.x) or a display layout (8.x).
- (void)remove:(id)entry;
@end

// Most recent first. Before 8.0.
@interface SBAppSwitcherModel (Identifiers)
- (NSArray *)identifiers;
@end

// Most recent first. From 8.0 on.
@interface SBAppSwitcherModel (Flattened)
- (NSArray *)snapshotOfFlattenedArrayOfAppIdentifiersWhichIsOnlyTemporary;
@end
