#include "FontState.h"

#include <algorithm>
#include <vector>

namespace {

struct FontState {
    NSString *name = nil;
    render::Face face = render::Face::regular;
    CGFloat size = 0;
};

FontState &state(UIFont *font) { return *static_cast<FontState *>(font->_fontState); }

// The families that a device has and whose faces are told apart here.
bool isKnown(NSString *name) {
    return [name hasPrefix:@"HelveticaNeue"] || [name hasPrefix:@"Helvetica"] ||
           [name hasPrefix:@".HelveticaNeue"];
}

render::Face face(NSString *name) {
    if ([name hasSuffix:@"-UltraLight"] || [name hasSuffix:@"-Thin"]) return render::Face::ultraLight;
    if ([name hasSuffix:@"-Light"]) return render::Face::light;
    if ([name hasSuffix:@"-Bold"]) return render::Face::bold;
    return render::Face::regular;
}

// As the platform does, the same font is made once: labels ask for few, and often.
constexpr size_t kMostKept = 64;

std::vector<UIFont *> &keptFonts() {
    static auto &fonts = *new std::vector<UIFont *>;
    return fonts;
}

} // namespace

namespace sim {

render::TextStyle textStyle(UIFont *font) { return {.face = state(font).face, .size = state(font).size}; }

} // namespace sim

@implementation UIFont

+ (UIFont *)fontWithName:(NSString *)name size:(CGFloat)size {
    for (UIFont *kept : keptFonts())
        if (state(kept).size == size && [state(kept).name isEqualToString:name]) return kept;
    if (!isKnown(name)) return nil;
    UIFont *font = [[self new] autorelease];
    font->_fontState = new FontState{[name copy], face(name), size};
    if (keptFonts().size() < kMostKept) keptFonts().push_back([font retain]);
    return font;
}

+ (UIFont *)systemFontOfSize:(CGFloat)size {
    return [self fontWithName:@"HelveticaNeue" size:size];
}

+ (UIFont *)boldSystemFontOfSize:(CGFloat)size {
    return [self fontWithName:@"HelveticaNeue-Medium" size:size];
}

- (void)dealloc {
    if (_fontState) {
        [state(self).name release];
        delete &state(self);
    }
    [super dealloc];
}

- (id)copyWithZone:(NSZone *)zone {
    return [self retain];
}

- (NSString *)fontName {
    return state(self).name;
}

- (CGFloat)pointSize {
    return state(self).size;
}

- (CGFloat)lineHeight {
    return render::fontMetrics(state(self).face, state(self).size).lineHeight;
}

@end

@implementation NSString (UIStringDrawing)

- (CGSize)sizeWithFont:(UIFont *)font {
    if (!font) return CGSizeZero;
    render::Size size = render::measureText([self UTF8String], sim::textStyle(font), 0);
    return {size.width, size.height};
}

@end
