#include "Runtime/Objc/LazyState.hpp"
#include "Runtime/Objc/Ownership.h"
#include "_UILegibilityImageSet+Further.h"

#include <UIKit/UIStatusBar.h>

namespace {

struct ImageSet {
    UIImage *image = nil, *shadow = nil; // retained
};

ImageSet &state(_UILegibilityImageSet *set) { return sim::lazyState<ImageSet>(set->_imageSetState); }

void replace(UIImage *&slot, UIImage *image) { sim::retainInto(slot, image); }

} // namespace

@implementation _UILegibilityImageSet

+ (instancetype)imageFromImage:(UIImage *)image withShadowImage:(UIImage *)shadow {
    _UILegibilityImageSet *set = [[self new] autorelease];
    [set setImage:image];
    [set setShadowImage:shadow];
    return set;
}

- (void)dealloc {
    [state(self).image release];
    [state(self).shadow release];
    delete &state(self);
    [super dealloc];
}

- (UIImage *)image {
    return state(self).image;
}
- (void)setImage:(UIImage *)image {
    replace(state(self).image, image);
}

- (UIImage *)shadowImage {
    return state(self).shadow;
}
- (void)setShadowImage:(UIImage *)image {
    replace(state(self).shadow, image);
}

@end
