// Tweets, as any application may offer to send one.
#pragma once

#include <UIKit/UIViewController.h>

// The sheet in which a tweet is written and sent.
@interface TWTweetComposeViewController : UIViewController {
@public
    void *_tweetState;
}
// NO once the sheet has been shown.
- (BOOL)setInitialText:(NSString *)text;
@end
