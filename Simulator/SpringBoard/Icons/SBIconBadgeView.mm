#include "Icons.h"

#include "Runtime/Objc/LazyState.hpp"
#include "Runtime/Process/Pixels.hpp"
#include "UIKit/Materials/DrawnImage.h"
#include "UIKit/UIKit+Further.h"

#include <UIKit/UIKit.h>

namespace {

constexpr CGFloat kHeight = 24, kTextSize = 16, kTextMargin = 6;
constexpr NSTimeInterval kPopDuration = 0.25;

struct BadgeState {
    NSString *text = nil; // retained, as what follows is
    UIImageView *background = nil;
    UIImageView *textView = nil;
};

BadgeState &state(SBIconBadgeView *badge) { return sim::lazyState<BadgeState>(badge->_badgeState); }

UIImageView *addImageView(UIView *view, UIImage *image) {
    UIImageView *imageView = [[UIImageView alloc] initWithImage:image];
    [view addSubview:imageView];
    return imageView;
}

UIImage *stretchable(UIImage *disc) {
    CGFloat cap = kHeight / 2 - 1;
    return [disc resizableImageWithCapInsets:UIEdgeInsetsMake(cap, cap, cap, cap)];
}

} // namespace

@implementation SBIconBadgeView

+ (UIFont *)_textFont {
    return [UIFont systemFontOfSize:kTextSize];
}

+ (UIImage *)_checkoutBackgroundImage {
    static UIImage *disc = [sim::drawnImage(R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 24 24">
<circle cx="12" cy="12" r="12" fill="#ff3b30"/></svg>)",
                                            CGSizeMake(kHeight, kHeight)) retain];
    return disc;
}

+ (UIImage *)_checkoutImageForText:(NSString *)text highlighted:(BOOL)highlighted {
    // "Checked out": the platform keeps them, too.
    constexpr NSUInteger kMostKept = 64;
    static NSMutableDictionary *const kept[] = {[NSMutableDictionary new], [NSMutableDictionary new]};
    NSMutableDictionary *images = kept[highlighted ? 1 : 0];
    if (!text) return nil;
    if (UIImage *image = [images objectForKey:text]) return image;
    UIColor *white = [UIColor whiteColor];
    UIImage *image =
        sim::textImage(text, [self _textFont], highlighted ? [white colorWithAlphaComponent:0.6] : white);
    if ([images count] >= kMostKept) [images removeAllObjects];
    if (image) [images setObject:image forKey:text];
    return image;
}

- (instancetype)init {
    if (!(self = [super initWithFrame:CGRectMake(0, 0, kHeight, kHeight)])) return nil;
    auto &mine = state(self);
    mine.background = addImageView(self, stretchable([[self class] _checkoutBackgroundImage]));
    mine.textView = addImageView(self, nil);
    [self setUserInteractionEnabled:NO];
    [self setOpaque:NO];
    return self;
}

- (void)dealloc {
    auto &mine = state(self);
    [mine.text release];
    [mine.background release];
    [mine.textView release];
    delete &mine;
    [super dealloc];
}

- (void)_resizeForTextImage:(UIImage *)image {
    // A badge that goes keeps its size.
    if (!image) return;
    CGSize text = [image size];
    CGFloat scale = [[UIScreen mainScreen] scale];
    auto whole = [=](CGFloat points) { return sim::wholePixels(points, scale); };
    CGFloat width = std::max(kHeight, whole(text.width + 2 * kTextMargin));
    [self setBounds:CGRectMake(0, 0, width, kHeight)];
    [state(self).background setFrame:[self bounds]];
    [state(self).textView setFrame:CGRectMake(whole((width - text.width) / 2),
                                              whole((kHeight - text.height) / 2), text.width, text.height)];
}

@end

@implementation SBIconBadgeView (Simulator)

- (void)configureForIcon:(SBIcon *)icon location:(int)location highlighted:(BOOL)highlighted {
    auto &mine = state(self);
    NSString *text = icon ? sim::badgeText(icon) : nil;
    if (text == mine.text || [text isEqualToString:mine.text]) return;
    [mine.text release];
    mine.text = [text copy];
    UIImage *image = text ? [[self class] _checkoutImageForText:text highlighted:highlighted] : nil;
    if (image) [mine.textView setImage:image];
    [self _resizeForTextImage:image];
}

- (void)animateIn {
    constexpr CGFloat kSmall = 0.1;
    [self setTransform:CGAffineTransformMakeScale(kSmall, kSmall)];
    [UIView animateWithDuration:kPopDuration animations:^{ [self setTransform:CGAffineTransformIdentity]; }];
}

- (void)leaveAnimated:(BOOL)animated {
    if (!animated) return [self removeFromSuperview];
    constexpr CGFloat kSmall = 0.01;
    [UIView animateWithDuration:kPopDuration
        animations:^{ [self setTransform:CGAffineTransformMakeScale(kSmall, kSmall)]; }
        completion:^(BOOL) { [self removeFromSuperview]; }];
}

@end
