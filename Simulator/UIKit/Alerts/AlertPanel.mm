#include "AlertPanel.h"

#include "Runtime/Objc/LazyState.hpp"
#include "Runtime/Process/Device.hpp"
#include "UIKit/UIKit+Further.h"
#include "UIKit/Views/ViewState.h"

#include <UIKit/UIBackdropView.h>
#include <UIKit/UIControl.h>
#include <UIKit/UILabel.h>

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

constexpr CGFloat kWidth = 270, kRadius = 7, kMargin = 15, kTop = 19, kBottom = 20, kBetween = 4;
constexpr CGFloat kButton = 44, kTitleSize = 17, kMessageSize = 13, kButtonSize = 17;

struct PanelState {
    UILabel *title = nil, *message = nil; // retained by the panel, as what follows
    std::vector<UIButton *> buttons;
    UIAlertView *target = nil; // not retained
    NSInteger cancel = -1;
};

PanelState &state(AlertPanel *panel) { return sim::lazyState<PanelState>(panel->_panelState); }

UILabel *makeLabel(AlertPanel *panel, NSString *text, UIFont *font) {
    if ([text length] == 0) return nil;
    UILabel *label = [[[UILabel alloc] initWithFrame:CGRectZero] autorelease];
    [label setText:text];
    [label setFont:font];
    [label setNumberOfLines:0];
    [label setLineBreakMode:NSLineBreakByWordWrapping];
    [label setTextAlignment:NSTextAlignmentCenter];
    [panel addSubview:label];
    return label;
}

// At `y`; returns where what follows may begin.
CGFloat place(UILabel *label, CGFloat y) {
    if (!label) return y;
    CGFloat width = kWidth - 2 * kMargin;
    CGFloat height = std::ceil([label sizeThatFits:CGSizeMake(width, 0)].height);
    [label setFrame:CGRectMake(kMargin, y, width, height)];
    return y + height + kBetween;
}

bool sideBySide(const PanelState &panel) {
    if (panel.buttons.size() != 2) return false;
    return std::all_of(panel.buttons.begin(), panel.buttons.end(), [](UIButton *button) {
        return [[button titleLabel] sizeThatFits:CGSizeZero].width <= kWidth / 2 - 12;
    });
}

_UIBackdropViewSettings *material() {
    _UIBackdropViewSettings *settings =
        [_UIBackdropViewSettings settingsForStyle:_UIBackdropViewStyleAdaptiveLight];
    [settings setColorTint:[UIColor colorWithWhite:0.97 alpha:1]];
    [settings setColorTintAlpha:0.86];
    return settings;
}

} // namespace

@implementation AlertWindow

- (void)layoutSubviews {
    [super layoutSubviews];
    CGSize size = [self bounds].size;
    for (UIView *panel in [self subviews]) [panel setCenter:{size.width / 2, size.height / 2}];
}

@end

@implementation AlertPanel

- (instancetype)initWithTitle:(NSString *)title
                      message:(NSString *)message
                      buttons:(NSArray *)titles
                       cancel:(NSInteger)cancel {
    if (!(self = [super initWithFrame:CGRectZero])) return nil;
    auto &mine = state(self);
    mine.cancel = cancel;
    [[self layer] setCornerRadius:kRadius];
    [self setClipsToBounds:YES];
    [self setOpaque:NO];
    UIView *backdrop = [[[_UIBackdropView alloc] initWithFrame:CGRectZero
                                       autosizesToFitSuperview:YES
                                                      settings:material()] autorelease];
    [backdrop setUserInteractionEnabled:NO];
    [self addSubview:backdrop];
    mine.title = makeLabel(self, title, [UIFont boldSystemFontOfSize:kTitleSize]);
    mine.message = makeLabel(self, message, [UIFont systemFontOfSize:kMessageSize]);
    for (NSString *each in titles) {
        UIButton *button = [UIButton buttonWithType:UIButtonTypeSystem];
        [button setTitle:each forState:UIControlStateNormal];
        [[button titleLabel] setFont:[UIFont systemFontOfSize:kButtonSize]];
        [button addTarget:self action:@selector(press:) forControlEvents:UIControlEventTouchUpInside];
        [self addSubview:button];
        mine.buttons.push_back(button);
    }
    [self arrange];
    return self;
}

- (void)dealloc {
    delete &state(self);
    [super dealloc];
}

- (void)setTarget:(UIAlertView *)alert {
    state(self).target = alert;
}

- (void)press:(UIButton *)button {
    auto &buttons = state(self).buttons;
    auto index = std::find(buttons.begin(), buttons.end(), button) - buttons.begin();
    [state(self).target buttonWasPressed:index];
}

- (void)arrange {
    auto &mine = state(self);
    CGFloat y = place(mine.message, place(mine.title, kTop)) - kBetween + kBottom;
    if (sideBySide(mine)) {
        [mine.buttons[0] setFrame:CGRectMake(0, y, kWidth / 2, kButton)];
        [mine.buttons[1] setFrame:CGRectMake(kWidth / 2, y, kWidth / 2, kButton)];
        y += kButton;
    } else {
        std::vector<UIButton *> order = mine.buttons;
        // The cancel button goes to the end.
        if (mine.cancel >= 0 && order.size() > 1)
            std::rotate(order.begin() + mine.cancel, order.begin() + mine.cancel + 1, order.end());
        for (UIButton *button : order) {
            [button setFrame:CGRectMake(0, y, kWidth, kButton)];
            y += kButton;
        }
    }
    [self setFrame:CGRectMake(0, 0, kWidth, y)];
    [self addLines];
}

// Above each row of buttons, and between two that stand side by side.
- (void)addLines {
    auto &mine = state(self);
    CGFloat hair = 1 / sim::device().scale;
    for (UIButton *button : mine.buttons) {
        CGRect frame = [button frame];
        CGRect lines[] = {CGRectMake(frame.origin.x, frame.origin.y, frame.size.width, hair),
                          CGRectMake(frame.origin.x, frame.origin.y, hair, frame.size.height)};
        for (const CGRect &line : lines) {
            if (line.size.width == hair && frame.origin.x == 0) continue;
            UIView *view = [[[UIView alloc] initWithFrame:line] autorelease];
            [view setUserInteractionEnabled:NO];
            [view setBackgroundColor:[UIColor colorWithWhite:0 alpha:0.18]];
            [self addSubview:view];
        }
    }
}

@end
