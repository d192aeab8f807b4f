#include "ShapeLayers.h"

#include "UIKit/CoreGraphics/CGObjects.h"
#include "UIKit/UIKit+Further.h"

namespace sim {

CAShapeLayer *addLine(CALayer *layer) {
    CAShapeLayer *line = [CAShapeLayer layer];
    [line setFillColor:nullptr];
    [line setLineCap:@"round"];
    [layer addSublayer:line];
    return line;
}

void setLine(CAShapeLayer *line, const render::Path &path, double width) {
    SimCGPath *object = [[SimCGPath new] autorelease];
    object->path = path;
    [line setPath:reference(object)];
    [line setLineWidth:width];
}

} // namespace sim
