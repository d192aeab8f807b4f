// The sheet for a tweet: a card over what was there before, with the text and two buttons. Nothing is sent.
#include "Runtime/Objc/LazyState.hpp"
#include "Runtime/Objc/Ownership.h"
#include "Runtime/Process/Events.hpp"
#include "TWTweetComposeViewController+Further.h"
#include "UIKit/UIKit+Further.h"

#include <Twitter/TWTweetComposeViewController.h>
#include <UIKit/UIKit.h>

namespace {

constexpr CGFloat kWidth = 300, kHeight = 170, kBar = 44, kMargin = 15;

struct TweetState {
    NSString *text = nil; // retained
    bool shown = false;
    UIView *card = nil; // retained by the view
};

TweetState &state(TWTweetComposeViewController *sheet) {
    return sim::lazyState<TweetState>(sheet->_tweetState);
}

UILabel *addLabel(UIView *card, NSString *text, CGRect frame, CGFloat size) {
    UILabel *label = [[[UILabel alloc] initWithFrame:frame] autorelease];
    [label setText:text];
    [label setFont:[UIFont systemFontOfSize:size]];
    [card addSubview:label];
    return label;
}

UIButton *addButton(UIView *card, NSString *title, CGFloat x, id target) {
    UIButton *button = [UIButton buttonWithType:UIButtonTypeSystem];
    [button setTitle:title forState:UIControlStateNormal];
    [[button titleLabel] setFont:[UIFont systemFontOfSize:17]];
    [button setFrame:CGRectMake(x, 0, 80, kBar)];
    [button addTarget:target action:@selector(close) forControlEvents:UIControlEventTouchUpInside];
    [card addSubview:button];
    return button;
}

} // namespace

@implementation TWTweetComposeViewController

+ (BOOL)canSendTweet {
    return YES;
}

- (void)dealloc {
    [state(self).text release];
    delete &state(self);
    [super dealloc];
}

- (BOOL)setInitialText:(NSString *)text {
    if (state(self).shown) return NO;
    sim::copyInto(state(self).text, text);
    return YES;
}

- (void)loadView {
    [super loadView];
    UIView *view = [self view];
    [view setBackgroundColor:[UIColor colorWithWhite:0.45 alpha:1]];
    UIView *card = [[[UIView alloc] initWithFrame:CGRectMake(0, 0, kWidth, kHeight)] autorelease];
    [card setBackgroundColor:[UIColor colorWithWhite:0.97 alpha:1]];
    [[card layer] setCornerRadius:6];
    UILabel *title = addLabel(card, @"Twitter", CGRectMake(80, 0, kWidth - 160, kBar), 17);
    [title setTextAlignment:NSTextAlignmentCenter];
    addButton(card, @"Cancel", 0, self);
    addButton(card, @"Post", kWidth - 80, self);
    UILabel *text = addLabel(card, state(self).text,
                             CGRectMake(kMargin, kBar, kWidth - 2 * kMargin, kHeight - kBar - kMargin), 17);
    [text setNumberOfLines:0];
    [text setLineBreakMode:NSLineBreakByWordWrapping];
    [view addSubview:card];
    state(self).card = card;
}

- (void)viewDidLayoutSubviews {
    [super viewDidLayoutSubviews];
    CGSize size = [[self view] bounds].size;
    [state(self).card setCenter:{size.width / 2, size.height * 0.3}];
}

- (void)viewWillAppear:(BOOL)animated {
    [super viewWillAppear:animated];
    if (state(self).shown) return;
    state(self).shown = true;
    NSString *text = state(self).text;
    sim::recordEvent("tweet", sim::Object{{"text", text ? [text UTF8String] : ""}});
}

- (void)close {
    [self dismissViewControllerAnimated:YES completion:nil];
}

@end
