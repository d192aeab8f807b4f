#include "PendixSettings/Root/HeaderCellForPendix.h"

#include "PendixSettings/Core/PaneState.h"
#include "PendixSettings/Core/Pattern.h"
#include "Tweak/Core/Screen.h"
#include "Tweak/Core/Support/UIView+Shimmer.h"

namespace pane = pendix::pane;

namespace {

constexpr CGFloat kHeight = 220;
constexpr CGFloat kBarHeight = 40, kTitleLift = 5;
constexpr CGFloat kTabWidth = 100, kTabHeight = 40;
// More than half its height, which gives the tab its shape.
constexpr CGFloat kTabRadius = kTabWidth - 10;
// On an iPad the page is narrower than its view, and its cells stand further in.
constexpr float kPadNarrower = 58;
constexpr CGFloat kPadLeft = -26;

UILabel *newTitle() {
    UILabel *label = [[UILabel alloc] initWithFrame:CGRectZero];
    label.textAlignment = NSTextAlignmentCenter;
    label.font = [UIFont fontWithName:@"HelveticaNeue-UltraLight" size:80];
    label.text = @"Pendix";
    label.textColor = pane::pattern();
    [label sizeToFit];
    const CGFloat height = label.frame.size.height;
    label.frame =
        CGRectMake(0, pane::height + (kHeight - height - kBarHeight) * 0.5 - kTitleLift, pane::width, height);
    [label startShimmering];
    return label;
}

UIView *newView(CGRect frame, UIColor *color) {
    UIView *view = [[UIView alloc] initWithFrame:frame];
    view.backgroundColor = color;
    return view;
}

} // namespace

@implementation HeaderCellForPendix

- (instancetype)initWithSpecifier:(PSSpecifier *)specifier {
    self = [super initWithStyle:UITableViewCellStyleDefault
                reuseIdentifier:@"headerCell"
                      specifier:specifier];
    if (self) [self buildHeader];
    return self;
}

- (void)buildHeader {
    const BOOL pad = pendix::isPad();
    if (pad) pane::width -= kPadNarrower;
    _logo = newView(CGRectMake(pad ? kPadLeft : 0, -pane::height, pane::width, pane::height + kHeight),
                    [UIColor whiteColor]);
    const CGSize size = _logo.frame.size;
    UILabel *title = newTitle();
    UIView *bar = newView(CGRectMake(0, size.height - kBarHeight, pane::width, kBarHeight), pane::color);
    _connector = newView(CGRectMake((size.width - kTabWidth) * 0.5, bar.frame.origin.y - kTabHeight / 2,
                                    kTabWidth, kTabHeight),
                         pane::color);
    _connector.layer.masksToBounds = YES;
    _connector.layer.cornerRadius = kTabRadius;
    UIView *const parts[] = {bar, title, _connector};
    for (UIView *view : parts) {
        [_logo addSubview:view];
        [view release];
    }
    [self addSubview:_logo];
    [_logo release];
    self.backgroundColor = [UIColor clearColor];
}

- (CGFloat)preferredHeightForWidth:(CGFloat)width {
    return kHeight;
}

- (CGFloat)preferredHeightForWidth:(CGFloat)width inTableView:(id)tableView {
    return [self preferredHeightForWidth:width];
}

@end
