#include "PendixSettings/Root/creatorsController.h"

#include "PendixSettings/Core/PaneTranslator.h"
#include "PendixSettings/Core/Pattern.h"
#include "PendixSettings/Core/Rows.h"
#include "Tweak/Core/Names.h"

namespace pane = pendix::pane;

namespace {

NSString *const kInfo = @"/Library/PreferenceBundles/PendixSettings.bundle/Info.plist";
NSString *const kGlyph = @"Pendix.png";

constexpr CGFloat kHeight = 156, kGlyphTop = 36, kGlyphSide = 40, kNameTop = 84, kVersionTop = 132;

NSString *version() {
    id number =
        [[NSDictionary dictionaryWithContentsOfFile:kInfo] objectForKey:@"CFBundleShortVersionString"];
    return [NSString stringWithFormat:@"%@ %@", pane::shownText(@"version"), number];
}

UILabel *newLine(NSString *text, NSString *font, CGFloat size, UIColor *color) {
    UILabel *label = [[UILabel alloc] initWithFrame:CGRectZero];
    label.text = text;
    label.textAlignment = NSTextAlignmentCenter;
    label.font = [UIFont fontWithName:font size:size];
    label.textColor = color;
    [label sizeToFit];
    return label;
}

} // namespace

@implementation creatorsController

- (NSArray *)buildRows {
    pane::Rows rows(self);
    [rows.header(@"creatorsHeader") setProperty:pane::shownText(@"desc_contacts") forKey:@"footerText"];
    return rows.list();
}

@end

@implementation creatorsHeader

- (instancetype)initWithSpecifier:(PSSpecifier *)specifier {
    self = [super initWithStyle:UITableViewCellStyleDefault
                reuseIdentifier:@"headerCell"
                      specifier:specifier];
    if (!self) return nil;
    UIImageView *glyph = [[UIImageView alloc]
        initWithImage:[UIImage imageWithContentsOfFile:pendix::names::supportFile(kGlyph)]];
    UILabel *name = newLine(@"Pendix", @"HelveticaNeue-UltraLight", 40, pane::pattern());
    UILabel *number = newLine(version(), @"HelveticaNeue-Light", 15, [UIColor grayColor]);
    glyph.frame = CGRectMake(0, kGlyphTop, kGlyphSide, kGlyphSide);
    name.frame = CGRectMake(0, kNameTop, name.frame.size.width, name.frame.size.height);
    number.frame = CGRectMake(0, kVersionTop, number.frame.size.width, number.frame.size.height);
    UIView *const parts[] = {glyph, name, number};
    for (UIView *view : parts) {
        [self addSubview:view];
        [view release];
    }
    self.backgroundColor = [UIColor clearColor];
    return self;
}

// Centred whichever way the device is held.
- (void)layoutSubviews {
    [super layoutSubviews];
    for (UIView *view in self.subviews) {
        if (![view isKindOfClass:[UILabel class]] && ![view isKindOfClass:[UIImageView class]]) continue;
        view.center = CGPointMake(self.bounds.size.width / 2, view.center.y);
    }
}

- (CGFloat)preferredHeightForWidth:(CGFloat)width {
    return kHeight;
}

- (CGFloat)preferredHeightForWidth:(CGFloat)width inTableView:(id)tableView {
    return [self preferredHeightForWidth:width];
}

@end
