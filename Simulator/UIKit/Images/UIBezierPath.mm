#include "UIBezierPath+Further.h"
#include "UIKit/CoreGraphics/CGObjects.h"

#include <UIKit/UIBezierPath.h>

namespace {

UIBezierPath *makePath(render::Path path) {
    UIBezierPath *object = [[UIBezierPath new] autorelease];
    SimCGPath *backing = [SimCGPath new];
    backing->path = std::move(path);
    object->_pathState = backing;
    return object;
}

} // namespace

@implementation UIBezierPath

+ (UIBezierPath *)bezierPathWithRect:(CGRect)rect {
    return makePath(render::Path::rect(sim::toRender(rect)));
}

+ (UIBezierPath *)bezierPathWithRoundedRect:(CGRect)rect cornerRadius:(CGFloat)radius {
    return makePath(render::Path::roundedRect(sim::toRender(rect), radius));
}

+ (UIBezierPath *)bezierPathWithOvalInRect:(CGRect)rect {
    return makePath(render::Path::oval(sim::toRender(rect)));
}

- (void)dealloc {
    [static_cast<SimCGPath *>(_pathState) release];
    [super dealloc];
}

- (CGPathRef)CGPath {
    return sim::reference(static_cast<SimCGPath *>(_pathState));
}

@end
