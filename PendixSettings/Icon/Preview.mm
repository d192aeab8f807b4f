#include "PendixSettings/Icon/Preview.h"

#include "PendixSettings/Core/PaneState.h"
#include "Tweak/Core/Names.h"
#include "Tweak/Core/PanelViews.h"

namespace pendix::pane {

namespace {

NSString *const kIconImage = @"preview.png";
NSString *const kMarkImage = @"PendixMiniNotification.png";
NSString *const kGlyphImage = @"Pendix.png";

constexpr NSInteger kPreview = 1, kMark = 2; // tags

constexpr CGFloat kIconSide = 60, kIconTop = 20;
constexpr CGFloat kMarkSide = 10, kMarkInset = 7;
constexpr CGFloat kGlyphSide = 40, kGlyphTop = 30;
constexpr CGFloat kGlowRadius = 25, kGlowDrop = 10;

UIImageView *addImage(UIView *cell, UIImage *image, CGRect frame, NSInteger tag) {
    UIImageView *view = [[[UIImageView alloc] initWithFrame:frame] autorelease];
    view.image = image;
    view.tag = tag;
    [cell addSubview:view];
    return view;
}

UIImage *templateAt(NSString *path) {
    return [[UIImage imageWithContentsOfFile:path] imageWithRenderingMode:UIImageRenderingModeAlwaysTemplate];
}

void addMarkedIcon(UIView *cell, CGFloat correction) {
    const CGFloat left = (correction + width - kIconSide) * 0.5;
    addImage(cell, [UIImage imageWithContentsOfFile:pendix::names::supportFile(kIconImage)],
             CGRectMake(left, kIconTop, kIconSide, kIconSide), kPreview);
    addImage(cell, templateAt(pendix::names::supportFile(kMarkImage)),
             CGRectMake(left + kIconSide - kMarkInset, kIconTop, kMarkSide, kMarkSide), kMark);
}

void addGlyph(UIView *cell, CGFloat correction) {
    const CGFloat left = (correction + width - kGlyphSide) * 0.5;
    UIImageView *glyph = addImage(cell, templateAt(pendix::names::supportFile(kGlyphImage)),
                                  CGRectMake(left, kGlyphTop, kGlyphSide, kGlyphSide), kPreview);
    glyph.tintColor = [UIColor blackColor];
    glyph.layer.shadowRadius = kGlowRadius;
    glyph.layer.shadowOpacity = 1;
    glyph.layer.shadowPath =
        [UIBezierPath bezierPathWithRect:CGRectMake(0, kGlowDrop, kGlyphSide, kGlyphSide)].CGPath;
}

} // namespace

void addPreview(UIView *cell, CGFloat correction) {
    if ([wtf isEqual:kIndeterminate]) addMarkedIcon(cell, correction);
    if ([wtf isEqual:kIcon]) addGlyph(cell, correction);
}

void colorPreview(UIView *cell, UIColor *color) {
    if ([wtf isEqual:kIndeterminate]) subviewWithTag(cell, kMark).tintColor = color;
    if ([wtf isEqual:kIcon]) subviewWithTag(cell, kPreview).layer.shadowColor = color.CGColor;
}

UIView *glowingPreview(UIView *cell) { return [wtf isEqual:kIcon] ? subviewWithTag(cell, kPreview) : nil; }

} // namespace pendix::pane
