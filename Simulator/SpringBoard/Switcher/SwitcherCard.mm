#include "SwitcherCard.h"

#include "Runtime/Objc/LazyState.hpp"
#include "Runtime/Process/Device.hpp"
#include "SpringBoard/Applications/ApplicationScreen.h"
#include "SpringBoard/Applications/Applications.h"
#include "SpringBoard/Home/HomeViews.h"
#include "SpringBoard/Icons/IconImages.h"
#include "SpringBoard/Icons/Icons.h"
#include "UIKit/Images/ImageState.h"
#include "UIKit/Views/ViewState.h"

namespace {

// Where its view stands on the home screen; what is on another page falls off the card's edge.
void drawIcon(render::Node &node, SBIcon *icon) {
    constexpr render::Rgba kGlass{1, 1, 1, 0.32};
    SBIconImageView *view = [[[SBIconViewMap homescreenMap] mappedIconViewForIcon:icon] _iconImageView];
    bool folder = [icon isFolderIcon];
    UIImage *image = folder ? sim::iconShape() : sim::iconImage(sim::state(icon).application);
    CGRect place = [view convertRect:[view bounds] toView:nil];
    node.drawings.push_back(render::Image{.bitmap = sim::state(image).image->bitmap,
                                          .rect = sim::toRender(place),
                                          .caps = {},
                                          .tint = folder ? std::optional(kGlass) : std::nullopt});
}

} // namespace

// The icons over the wallpaper, for the card of the home screen.
@interface SBHomeScreenCardPage : SBWallpaperView
@end

@implementation SBHomeScreenCardPage

- (void)appendDrawingsTo:(render::Node &)node {
    [super appendDrawingsTo:node];
    for (auto *icons : {&sim::homeIcons().pages, &sim::homeIcons().dock})
        for (SBIcon *icon : *icons) drawIcon(node, icon);
}

@end

namespace {

struct CardState {
    SBApplication *application = nil; // lives as long as the process
    id<SBAppSwitcherCardDelegate> delegate = nil;
};

CardState &state(SBAppSwitcherCardView *view) { return sim::lazyState<CardState>(view->_cardState); }

UIView *makePage(SBApplication *application, CGRect screen) {
    if (!application) return [[[SBHomeScreenCardPage alloc] initWithFrame:screen] autorelease];
    ApplicationScreenView *page = [[[ApplicationScreenView alloc] initWithFrame:screen] autorelease];
    page->_application = application;
    return page;
}

// The whole screen, drawn small.
UIView *makePicture(SBApplication *application, CGFloat scale) {
    CGRect screen = CGRectMake(0, 0, sim::device().width, sim::device().height);
    UIView *picture = makePage(application, screen);
    [picture setUserInteractionEnabled:NO];
    [picture setClipsToBounds:YES];
    [[picture layer] setCornerRadius:6];
    [picture setTransform:CGAffineTransformMakeScale(scale, scale)];
    [picture setCenter:CGPointMake(screen.size.width * scale / 2, screen.size.height * scale / 2)];
    return picture;
}

// One that shows the time goes on showing it.
SBIconImageView *makeIcon(SBApplication *application, CGRect card) {
    constexpr CGFloat kBelow = 16;
    SBIcon *icon = sim::findIcon(sim::identifierOf(application));
    SBIconView *onHomeScreen = [[SBIconViewMap homescreenMap] mappedIconViewForIcon:icon];
    Class kind = onHomeScreen ? [[onHomeScreen _iconImageView] class] : [SBIconImageView class];
    auto side = static_cast<CGFloat>(sim::iconSide());
    SBIconImageView *view = [[[kind alloc]
        initWithFrame:CGRectMake((card.size.width - side) / 2, card.size.height + kBelow, side, side)]
        autorelease];
    [view setIcon:icon];
    return view;
}

UILabel *makeName(NSString *name, CGRect card) {
    constexpr CGFloat kBelow = 22, kHeight = 18, kSize = 13;
    CGFloat y = card.size.height + kBelow + static_cast<CGFloat>(sim::iconSide());
    UILabel *label = [[[UILabel alloc] initWithFrame:CGRectMake(0, y, card.size.width, kHeight)] autorelease];
    [label setText:name];
    [label setFont:[UIFont systemFontOfSize:kSize]];
    [label setTextColor:[UIColor whiteColor]];
    [label setTextAlignment:NSTextAlignmentCenter];
    return label;
}

} // namespace

@implementation SBAppSwitcherCardView

- (instancetype)initWithApplication:(SBApplication *)application
                              scale:(CGFloat)scale
                           delegate:(id<SBAppSwitcherCardDelegate>)delegate {
    CGRect frame = CGRectMake(0, 0, sim::device().width * scale, sim::device().height * scale);
    if (!(self = [super initWithFrame:frame])) return nil;
    state(self) = {application, delegate};
    [self addSubview:makePicture(application, scale)];
    UITapGestureRecognizer *tap =
        [[[UITapGestureRecognizer alloc] initWithTarget:self action:@selector(tapped)] autorelease];
    [self addGestureRecognizer:tap];
    if (!application) return self;
    [self addSubview:makeIcon(application, frame)];
    [self addSubview:makeName([application displayName], frame)];
    UISwipeGestureRecognizer *swipe =
        [[[UISwipeGestureRecognizer alloc] initWithTarget:self action:@selector(thrownUp)] autorelease];
    [swipe setDirection:UISwipeGestureRecognizerDirectionUp];
    [self addGestureRecognizer:swipe];
    return self;
}

- (void)dealloc {
    delete &state(self);
    [super dealloc];
}

- (SBApplication *)application {
    return state(self).application;
}

- (void)tapped {
    [state(self).delegate cardTapped:self];
}

- (void)thrownUp {
    [state(self).delegate cardThrownUp:self];
}

@end
