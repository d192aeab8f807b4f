#include "PendixSettings/Root/LockedUIViewController.h"

@implementation LockedUIViewController

- (BOOL)shouldAutorotate {
    return NO;
}

// The orientation's own number, not the mask of it.
- (NSUInteger)supportedInterfaceOrientations {
    return UIInterfaceOrientationPortrait;
}

@end
