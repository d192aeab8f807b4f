#include "PendixSettings/Root/creatorsController.h"

#include "PendixSettings/Core/PaneTranslator.h"
#include "PendixSettings/Core/Pattern.h"
#include "Tweak/Core/Accessibility/Aids.h"
#include "Tweak/Core/Names.h"

#include <UIKit/UIKit.h>

#include <algorithm>

namespace pane = pendix::pane;

namespace {

NSString *const kInfo = @"/Library/PreferenceBundles/PendixSettings.bundle/Info.plist";
NSString *const kGlyph = @"Pendix.png";

constexpr CGFloat kGlyphSide = 40, kGap = 12, kTop = 72; // below the status bar and the button
constexpr CGFloat kButtonTop = 20, kButtonHeight = 44, kButtonMargin = 16;
constexpr CGFloat kTextMargin = 24, kTextWidth = 420, kTextHeight = 10000; // at most

NSString *version() {
    id number =
        [[NSDictionary dictionaryWithContentsOfFile:kInfo] objectForKey:@"CFBundleShortVersionString"];
    return [NSString stringWithFormat:@"%@ %@", pane::shownText(@"version"), number];
}

void addLine(UIView *page, NSString *text, NSString *font, CGFloat size, UIColor *color) {
    UILabel *label = [[UILabel alloc] initWithFrame:CGRectZero];
    label.text = text;
    label.textAlignment = NSTextAlignmentCenter;
    label.numberOfLines = 0;
    constexpr CGFloat kMost = 1.5; // the page does not scroll
    label.font = pendix::textFont(font, size * std::min(pendix::textScale(), kMost));
    label.textColor = color;
    [page addSubview:label];
    [label release];
}

} // namespace

@implementation creatorsController

- (void)viewDidLoad {
    [super viewDidLoad];
    UIView *page = self.view;
    page.backgroundColor = [UIColor whiteColor];
    UIImageView *glyph = [[UIImageView alloc]
        initWithImage:[UIImage imageWithContentsOfFile:pendix::names::supportFile(kGlyph)]];
    glyph.frame = CGRectMake(0, 0, kGlyphSide, kGlyphSide);
    [page addSubview:glyph];
    [glyph release];
    addLine(page, @"Pendix", @"HelveticaNeue-UltraLight", 40, pane::pattern());
    addLine(page, version(), @"HelveticaNeue-Light", 15, [UIColor grayColor]);
    addLine(page, pane::shownText(@"desc_contacts"), @"HelveticaNeue-Light", 15, [UIColor blackColor]);
    [self addButton];
}

- (void)addButton {
    UIButton *button = [UIButton buttonWithType:UIButtonTypeSystem];
    [button setTitle:pane::shownText(@"cancel") forState:UIControlStateNormal];
    [button addTarget:self action:@selector(leave) forControlEvents:UIControlEventTouchUpInside];
    [self.view addSubview:button];
}

// Below one another in the middle, the button at the top right, for the size that it was presented in.
- (void)viewDidLayoutSubviews {
    [super viewDidLayoutSubviews];
    const CGFloat width = self.view.bounds.size.width, room = width - 2 * kTextMargin;
    CGFloat top = kTop;
    for (UIView *part in self.view.subviews) {
        CGSize size = part.frame.size;
        if ([part isKindOfClass:[UIButton class]]) {
            size = [part sizeThatFits:size];
            part.frame =
                CGRectMake(width - kButtonMargin - size.width, kButtonTop, size.width, kButtonHeight);
            continue;
        }
        if ([part isKindOfClass:[UILabel class]])
            size = [part sizeThatFits:CGSizeMake(room < kTextWidth ? room : kTextWidth, kTextHeight)];
        part.frame = CGRectMake((width - size.width) / 2, top, size.width, size.height);
        top += size.height + kGap;
    }
}

- (void)leave {
    [self dismissViewControllerAnimated:YES completion:nil];
}

@end
