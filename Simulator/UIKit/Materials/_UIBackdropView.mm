#include "BackdropState.h"
#include "Runtime/Objc/LazyState.hpp"
#include "UIKit/Views/UIView+Further.h"
#include "UIKit/Views/ViewState.h"
#include "_UIBackdropView+Further.h"

namespace {

struct BackdropState {
    _UIBackdropViewSettings *settings = nil; // retained
    bool autosizes = false;
};

BackdropState &state(_UIBackdropView *view) { return sim::lazyState<BackdropState>(view->_backdropState); }

} // namespace

@implementation _UIBackdropView

- (instancetype)initWithSettings:(_UIBackdropViewSettings *)settings {
    return [self initWithFrame:CGRectZero autosizesToFitSuperview:YES settings:settings];
}

- (instancetype)initWithFrame:(CGRect)frame
      autosizesToFitSuperview:(BOOL)autosizes
                     settings:(_UIBackdropViewSettings *)settings {
    if (!(self = [super initWithFrame:frame])) return nil;
    state(self) = {[settings retain], autosizes == YES};
    [self setOpaque:NO];
    if (autosizes)
        [self setAutoresizingMask:UIViewAutoresizingFlexibleWidth | UIViewAutoresizingFlexibleHeight];
    return self;
}

- (void)dealloc {
    [state(self).settings release];
    delete &state(self);
    [super dealloc];
}

- (void)didMoveToSuperview {
    [super didMoveToSuperview];
    if (state(self).autosizes && [self superview]) [self setFrame:[[self superview] bounds]];
}

- (void)appendDrawingsTo:(render::Node &)node {
    if (state(self).settings) node.backdrop = sim::backdrop(state(self).settings);
}

@end
