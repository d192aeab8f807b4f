#include "IconImages.h"
#include "Icons.h"

#include "Runtime/Objc/LazyState.hpp"
#include "Runtime/Objc/Ownership.h"
#include "Runtime/Process/Device.hpp"
#include "SpringBoard/Home/SBIconController.h"
#include "UIKit/UIKit+Further.h"

#include <UIKit/UIKit.h>

namespace {

// How far a badge stands out over the image's corner, in points.
constexpr CGFloat kBadgeRight = 10, kBadgeTop = 9;
constexpr CGFloat kTouchMargin = 8; // at the sides: half of what lies between two icons
constexpr CGFloat kLabelGap = 4, kLabelHeight = 16, kLabelOverhang = 13;
// What an icon's view is taller than its image, for the label; the tablet's is inferred.
constexpr CGFloat kPhoneLabelRoom = 14, kPadLabelRoom = 17;

struct ViewParts {
    SBIcon *icon = nil;           // retained
    SBIconImageView *image = nil; // retained, as what follows is
    UILabel *label = nil;
    SBIconBadgeView *badge = nil;
    bool drawsBadge = true;
};

ViewParts &parts(SBIconView *view) { return sim::lazyState<ViewParts>(view->_iconViewState); }

UILabel *makeLabel() {
    CGFloat side = sim::iconSide();
    CGRect frame = CGRectMake(-kLabelOverhang, side + kLabelGap, side + 2 * kLabelOverhang, kLabelHeight);
    UILabel *label = [[UILabel alloc] initWithFrame:frame];
    constexpr CGFloat kPhoneSize = 12, kPadSize = 14;
    [label setFont:[UIFont fontWithName:@"HelveticaNeue" size:sim::device().pad ? kPadSize : kPhoneSize]];
    [label setTextColor:[UIColor whiteColor]];
    [label setTextAlignment:NSTextAlignmentCenter];
    CALayer *layer = [label layer];
    [layer setShadowColor:[[UIColor blackColor] CGColor]];
    [layer setShadowOpacity:0.35];
    [layer setShadowOffset:CGSizeMake(0, 0.5)];
    [layer setShadowRadius:1.5];
    return label;
}

Class imageClass(SBIcon *icon) {
    if ([icon isFolderIcon]) return [SBFolderIconImageView class];
    bool clock = [[icon nodeIdentifier] isEqualToString:@"com.apple.mobiletimer"];
    return clock ? [SBClockApplicationIconImageView class] : [SBIconImageView class];
}

} // namespace

@implementation SBIconView

+ (CGSize)defaultIconSize {
    CGFloat side = sim::iconSide();
    return CGSizeMake(side, side + (sim::device().pad ? kPadLabelRoom : kPhoneLabelRoom));
}

- (instancetype)initWithDefaultSize {
    CGSize size = [[self class] defaultIconSize];
    if (!(self = [super initWithFrame:CGRectMake(0, 0, size.width, size.height)])) return nil;
    parts(self).label = makeLabel();
    [self addSubview:parts(self).label];
    [self setOpaque:NO];
    return self;
}

- (void)dealloc {
    auto &mine = parts(self);
    [mine.icon release];
    [mine.image release];
    [mine.label release];
    [mine.badge release];
    delete &mine;
    [super dealloc];
}

- (SBIcon *)icon {
    return parts(self).icon;
}

- (void)setIcon:(SBIcon *)icon {
    auto &mine = parts(self);
    sim::retainInto(mine.icon, icon);
    [mine.image removeFromSuperview];
    [mine.image release];
    mine.image = [[imageClass(icon) alloc] initWithFrame:CGRectMake(0, 0, sim::iconSide(), sim::iconSide())];
    [mine.image setIcon:icon];
    [self insertSubview:mine.image atIndex:0];
    [mine.label setText:[icon displayName]];
    [self _updateAccessoryViewWithAnimation:NO];
}

- (SBIconImageView *)_iconImageView {
    return parts(self).image;
}

- (void)setDrawsBadge:(BOOL)draws {
    parts(self).drawsBadge = draws;
}

- (void)_updateAccessoryViewWithAnimation:(BOOL)animated {
    auto &mine = parts(self);
    bool wanted = mine.drawsBadge && sim::badgeText(mine.icon);
    bool fresh = wanted && !mine.badge;
    if (fresh) {
        mine.badge = [[SBIconBadgeView alloc] init];
        [self addSubview:mine.badge];
    }
    // A badge that only goes out of sight, with the folder that closes, keeps its text.
    if (mine.drawsBadge) [mine.badge configureForIcon:wanted ? mine.icon : nil location:0 highlighted:NO];
    if (!wanted) {
        [mine.badge leaveAnimated:animated];
        [mine.badge release];
        mine.badge = nil;
        return;
    }
    [self layoutSubviews];
    if (fresh && animated) [mine.badge animateIn];
}

- (void)layoutSubviews {
    SBIconBadgeView *badge = parts(self).badge;
    if (!badge) return;
    CGSize size = [badge bounds].size;
    [badge setCenter:CGPointMake([self bounds].size.width + kBadgeRight - size.width / 2,
                                 size.height / 2 - kBadgeTop)];
}

// The label belongs to what can be touched.
- (BOOL)pointInside:(CGPoint)point withEvent:(UIEvent *)event {
    CGRect reach = [self bounds];
    reach.size.height = sim::iconSide() + kLabelGap + kLabelHeight;
    return CGRectContainsPoint(CGRectInset(reach, -kTouchMargin, 0), point);
}

- (void)touchesBegan:(NSSet *)touches withEvent:(UIEvent *)event {
    [parts(self).image setHighlighted:YES];
}

- (void)touchesCancelled:(NSSet *)touches withEvent:(UIEvent *)event {
    [parts(self).image setHighlighted:NO];
}

- (void)touchesMoved:(NSSet *)touches withEvent:(UIEvent *)event {
    CGPoint point = [[touches anyObject] locationInView:self];
    [parts(self).image setHighlighted:[self pointInside:point withEvent:event]];
}

- (void)touchesEnded:(NSSet *)touches withEvent:(UIEvent *)event {
    [parts(self).image setHighlighted:NO];
    if ([self pointInside:[[touches anyObject] locationInView:self] withEvent:event])
        [[SBIconController sharedInstance] iconTapped:self];
}

@end

@implementation SBFolderIconView
@end
