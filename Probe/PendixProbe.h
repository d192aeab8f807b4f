// Asks every question some seconds after the home screen has launched, and writes the answers into one
// property list beside the settings: org.quillhub.pendix.probe.plist. Calls that come later are added as they
// come.
#pragma once

#import <Foundation/Foundation.h>

namespace probe {

// Waits for the home screen's launch. Sends no message.
void startAfterLaunch();

// The answer to a question that takes time. The first one counts.
void answerLater(const char *name, id answer);

} // namespace probe

@interface PendixProbe : NSObject
- (void)look;
- (void)write;
- (void)writeNewCalls;
@end
