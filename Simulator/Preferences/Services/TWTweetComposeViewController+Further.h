// What the platform has beyond <Twitter/TWTweetComposeViewController.h>: used by the simulator and its tests
// only.
#pragma once

#include <Twitter/TWTweetComposeViewController.h>

@interface TWTweetComposeViewController (Further)
+ (BOOL)canSendTweet;
@end
