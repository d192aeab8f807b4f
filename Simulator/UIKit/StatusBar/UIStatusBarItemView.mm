#include "StatusBarState.h"

#include "Runtime/Objc/LazyState.hpp"
#include "Runtime/Objc/Ownership.h"
#include "Runtime/Process/Pixels.hpp"
#include "UIKit/Images/ImageState.h"
#include "UIKit/Materials/DrawnImage.h"
#include "UIKit/QuartzCore/CALayer+Further.h"
#include "UIKit/Views/ViewState.h"
#include "_UILegibilityImageSet+Further.h"

namespace {

struct ItemViewState {
    UIStatusBarItem *item = nil;                       // retained
    UIStatusBarForegroundStyleAttributes *style = nil; // retained
    _UILegibilityImageSet *contents = nil;             // retained
    NSString *text = nil;                              // retained; what the text image says, and its colour
    UIColor *textColor = nil;                          // retained
    UIImage *textImage = nil;                          // retained
};

ItemViewState &state(UIStatusBarItemView *view) {
    return sim::lazyState<ItemViewState>(view->_itemViewState);
}

// Texts are set anew only when they differ: every item is asked each minute.
UIImage *textImage(ItemViewState &mine, NSString *text) {
    constexpr CGFloat kTextSize = 12;
    UIColor *color = [mine.style tintColor];
    if ([text isEqualToString:mine.text] && [color isEqual:mine.textColor]) return mine.textImage;
    [mine.text release];
    [mine.textColor release];
    [mine.textImage release];
    mine.text = [text copy];
    mine.textColor = [color retain];
    mine.textImage = [sim::textImage(text, [UIFont systemFontOfSize:kTextSize], color) retain];
    return mine.textImage;
}

} // namespace

@implementation UIStatusBarItemView

// Without data the view shows what the device tells at the moment; no item here has actions.
- (id)initWithItem:(UIStatusBarItem *)item data:(id)data actions:(int)actions style:(id)style {
    if (!(self = [super initWithFrame:CGRectMake(0, 0, 0, sim::kStatusBarHeight)])) return nil;
    auto &mine = state(self);
    mine.item = [item retain];
    mine.style = [style retain];
    [self setOpaque:NO];
    return self;
}

- (void)dealloc {
    auto &mine = state(self);
    [mine.item release];
    [mine.style release];
    [mine.contents release];
    [mine.text release];
    [mine.textColor release];
    [mine.textImage release];
    delete &mine;
    [super dealloc];
}

- (UIStatusBarItem *)item {
    return state(self).item;
}

- (_UILegibilityImageSet *)contentsImage {
    return nil;
}

- (void)appendDrawingsTo:(render::Node &)node {
    UIImage *image = [state(self).contents image];
    if (!image) return;
    CGSize size = [image size];
    // Whole pixels, so that thin strokes stay crisp.
    CGFloat top = sim::wholePixels((node.bounds.height - size.height) / 2, [image scale]);
    node.drawings.push_back(render::Image{.bitmap = sim::state(image).image->bitmap,
                                          .rect = {0, top, size.width, size.height},
                                          .caps = {},
                                          .tint = {}});
}

@end

@implementation UIStatusBarItemView (Contents)

- (UIStatusBarForegroundStyleAttributes *)foregroundStyle {
    return state(self).style;
}

- (void)setForegroundStyle:(UIStatusBarForegroundStyleAttributes *)style {
    sim::retainInto(state(self).style, style);
}

- (CGFloat)updateContentsAndWidth {
    _UILegibilityImageSet *contents = [[self contentsImage] retain];
    [state(self).contents release];
    state(self).contents = contents;
    return contents ? [[contents image] size].width : 0;
}

- (_UILegibilityImageSet *)imageWithText:(NSString *)text {
    return [self imageFromImage:textImage(state(self), text)];
}

- (_UILegibilityImageSet *)imageFromImage:(UIImage *)image {
    return [_UILegibilityImageSet imageFromImage:image withShadowImage:nil];
}

@end
