// Badged applications and the indicator's view; added to the home screen's application.
#pragma once

#include <SpringBoard/SpringBoard.h>
#include <UIKit/UIStatusBar.h>

@interface SpringBoard (PendixBadges)
// Whether an application with a badge is listed. Applications hidden by their own setting leave the list
// here. NO in running mode and while the display is off.
- (BOOL)checkBadges;
@end

// All nil or empty while there is no status bar; `window1` must have been set to its window.
@interface SpringBoard (PendixItemView)
// The status bar's subview at that index; 1 is the foreground, which holds the item views.
- (UIView *)getForeGround:(int)index;
- (NSArray *)statusBarItemViews;
// Whether the view is the extension's item view.
- (BOOL)isPendix:(id)view;
// The extension's item view; nil, with a line in the log, when the item is invisible or absent.
- (UIStatusBarItemView *)pendix;
@end

@interface UIStatusBarItemView (Pendix)
- (BOOL)isPendix:(id)view;
@end
