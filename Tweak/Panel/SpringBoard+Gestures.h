// What a person does to the panel; actions of its recognisers and buttons, added to the home screen's
// application.
#pragma once

#include <SpringBoard/SpringBoard.h>
#include <UIKit/UIKit.h>

@interface SpringBoard (PendixGestures)
// Opens the application; while the device is locked, asks for its passcode first.
- (void)tapPressEvent:(UITapGestureRecognizer *)recognizer;
// With `close` on the first press shows the close marks; the next, and any without it, asks whether to clear
// all.
- (void)longPressEvent:(UILongPressGestureRecognizer *)recognizer;
// A tap on a close mark.
- (void)close:(UITapGestureRecognizer *)recognizer;
// A vertical drag: flung off the strip, the application is closed.
- (void)swipeToClose:(UIPanGestureRecognizer *)recognizer;
// Takes the application off the panel, and quits it or clears its badge.
- (void)closeIcon:(UIView *)item;
// The two answers of the question whether to clear all.
- (void)okay;
- (void)dismissRequest;
@end
