// Card mode: an application's newest snapshot in the screen's proportions, with its icon at the lower edge.
#include "Tweak/Panel/PanelBuild.h"

#include "Tweak/Core/PanelViews.h"
#include "Tweak/Core/State.h"
#include "Tweak/Core/Tags.h"
#include "Tweak/Panel/Panel.h"
#include "Tweak/Panel/Replacements.h"

namespace pendix {

namespace {

constexpr CGFloat kCardRadius = 4, kCardAlpha = 0.5, kLightWhite = 0.2, kDarkWhite = 0.8;
constexpr CGFloat kIconSide = 25, kIconAboveEdge = 20;
constexpr CGFloat kIconRadius = 13.5 / 60 * kIconSide; // the home screen's proportion
constexpr CGFloat kIconShadow = 10;

// The application's own folder below its base path, or the base path itself when it has none there.
UIImage *snapshot(const PanelBuild &build, const PanelApplication &application) {
    if (![application.application respondsToSelector:@selector(_baseAppSnapshotPath)]) return nil;
    NSString *base = [application.application _baseAppSnapshotPath];
    if (!base) return nil;
    NSString *own = [NSString stringWithFormat:@"%@/%@", base, application.identifier];
    BOOL isFolder = NO;
    BOOL exists = [[NSFileManager defaultManager] fileExistsAtPath:own isDirectory:&isFolder];
    return [build.springBoard imageForOrientation:static_cast<int>(last)
                                             path:exists && isFolder ? own : base];
}

void addCardIcon(const PanelApplication &application, UIView *itemView, CGSize card) {
    CGRect frame =
        CGRectMake((card.width - kIconSide) / 2, card.height - kIconAboveEdge, kIconSide, kIconSide);
    UIImageView *icon = [[UIImageView alloc] initWithFrame:frame];
    icon.tag = tags::itemCardIcon;
    icon.image = [[application.iconView _iconImageView] contentsImage];
    icon.layer.masksToBounds = YES;
    icon.layer.cornerRadius = kIconRadius;
    [itemView addSubview:icon];
    [icon release];

    CALayer *layer = itemView.layer;
    layer.shadowColor = [UIColor blackColor].CGColor;
    layer.shadowOpacity = 1;
    layer.shadowRadius = kIconShadow;
    layer.shadowPath = [UIBezierPath bezierPathWithRect:frame].CGPath;
}

} // namespace

void makeCard(PanelBuild &build, const PanelApplication &application, UIView *itemView,
              UIImageView *iconImage) {
    const CGFloat width = iconImage.frame.size.width;
    const CGFloat height = itemView.frame.size.width * build.screen.height / build.screen.width;
    const CGFloat growth = height - iconImage.frame.size.height;
    iconImage.image = snapshot(build, application);
    iconImage.layer.masksToBounds = YES;
    iconImage.layer.cornerRadius = kCardRadius;
    iconImage.backgroundColor = [UIColor colorWithWhite:build.scheme.light ? kLightWhite : kDarkWhite
                                                  alpha:kCardAlpha];
    setHeight(iconImage, height);
    setHeight(itemView, itemView.frame.size.height + growth);
    addCardIcon(application, itemView, CGSizeMake(width, height));
    // The panel grows by the first card.
    if (lastGheight == 0) lastGheight = static_cast<float>(gheight + (height - build.layout.icon.height));
}

UIImage *added::imageForOrientation(SpringBoard *, SEL, int, NSString *path) {
    for (NSString *name in [[NSFileManager defaultManager] contentsOfDirectoryAtPath:path error:nullptr]) {
        if ([name rangeOfString:@"Portrait"].location == NSNotFound) continue;
        UIImage *image = [UIImage imageWithContentsOfFile:[NSString stringWithFormat:@"%@/%@", path, name]];
        if (image && image.size.width != 0 && image.size.height != 0) return image;
    }
    return nil;
}

} // namespace pendix
