#include "ImageState.h"

#include "DecodedFiles.hpp"
#include "Runtime/Process/Device.hpp"
#include "Runtime/Process/Events.hpp"
#include "UIImage+Further.h"

#include <map>

namespace sim {

const ImageState &state(UIImage *image) { return *static_cast<ImageState *>(image->_imageState); }

namespace {

UIImage *wrap(ImageState state) {
    UIImage *image = [[UIImage new] autorelease];
    [state.image retain];
    image->_imageState = new ImageState(std::move(state));
    return image;
}

// "name@2x.png" for "name.png"; nil when the name has such a mark already.
NSString *scaledName(NSString *name, int scale) {
    NSString *stem = [name stringByDeletingPathExtension];
    if ([stem hasSuffix:@"@2x"] || [stem hasSuffix:@"@3x"]) return nil;
    NSString *extension = [name pathExtension];
    if ([extension length] == 0) extension = @"png";
    return [NSString stringWithFormat:@"%@@%dx.%@", stem, scale, extension];
}

// The file itself, or the one that is meant by a name without extension.
render::BitmapRef loadPlainBitmap(NSString *path) {
    auto bitmap = loadBitmap(path);
    bool bare = [[path pathExtension] length] == 0;
    return bitmap || !bare ? bitmap : loadBitmap([path stringByAppendingPathExtension:@"png"]);
}

// The file of the screen's scale when there is one, then the others, then the file itself.
render::BitmapRef loadBestBitmap(NSString *path) {
    int screen = static_cast<int>(device().scale);
    for (int scale : {screen, 2, 3}) {
        NSString *scaled = scale > 1 ? scaledName(path, scale) : nil;
        if (auto bitmap = scaled ? loadBitmap(scaled) : nullptr) return bitmap;
        if (scale == screen && screen == 1)
            if (auto bitmap = loadPlainBitmap(path)) return bitmap;
    }
    return loadPlainBitmap(path);
}

UIImage *imageAt(NSString *path, NSString *source) {
    auto bitmap = path ? loadBestBitmap(path) : nullptr;
    if (bitmap) return makeImage(bitmap, [source UTF8String]);
    if (path) recordEvent("missing_file", Object{{"path", [path UTF8String]}});
    return nil;
}

} // namespace

UIImage *makeImage(render::BitmapRef bitmap, std::string source) {
    SimCGImage *image = [[SimCGImage new] autorelease];
    image->bitmap = std::move(bitmap);
    return wrap(ImageState{.image = image, .source = std::move(source)});
}

render::BitmapRef loadBitmap(NSString *path) {
    NSData *data = [NSData dataWithContentsOfFile:path];
    if (!data) return nullptr;
    NSString *stem = [path stringByDeletingPathExtension];
    double scale = [stem hasSuffix:@"@3x"] ? 3 : [stem hasSuffix:@"@2x"] ? 2 : 1;
    return decodedPng({static_cast<const char *>([data bytes]), [data length]}, scale);
}

} // namespace sim

using sim::state;

@implementation UIImage

+ (UIImage *)imageNamed:(NSString *)name {
    // For the life of the process.
    static auto &cache = *new std::map<std::string, UIImage *>;
    if ([name length] == 0) return nil;
    auto found = cache.find([name UTF8String]);
    if (found != cache.end()) return found->second;
    NSString *path = [name isAbsolutePath] ? name
                                           : [@"/System/Library/Frameworks/UIKit.framework"
                                                 stringByAppendingPathComponent:name];
    UIImage *image = sim::imageAt(path, name);
    if (image) cache[[name UTF8String]] = [image retain];
    return image;
}

+ (UIImage *)imageWithContentsOfFile:(NSString *)path {
    return sim::imageAt(path, path);
}

+ (UIImage *)imageWithCGImage:(CGImageRef)reference {
    if (!reference) return nil;
    SimCGImage *image = sim::object(reference);
    if (image->bitmap->scale != 1) {
        // One point a pixel, whatever the pixels were made for.
        render::Bitmap pixels = *image->bitmap;
        pixels.scale = 1;
        SimCGImage *copy = [[SimCGImage new] autorelease];
        copy->bitmap = std::make_shared<render::Bitmap>(std::move(pixels));
        copy->fromContext = image->fromContext;
        image = copy;
    }
    return sim::wrap(sim::ImageState{.image = image});
}

- (void)dealloc {
    if (_imageState) {
        [state(self).image release];
        delete static_cast<sim::ImageState *>(_imageState);
    }
    [super dealloc];
}

- (CGSize)size {
    const auto &bitmap = *state(self).image->bitmap;
    return {bitmap.width / bitmap.scale, bitmap.height / bitmap.scale};
}

- (CGFloat)scale {
    return state(self).image->bitmap->scale;
}

- (CGImageRef)CGImage {
    return sim::reference(state(self).image);
}

- (UIImageRenderingMode)renderingMode {
    return state(self).mode;
}

- (UIEdgeInsets)capInsets {
    return state(self).caps;
}

- (UIImage *)imageWithRenderingMode:(UIImageRenderingMode)mode {
    auto copy = state(self);
    copy.mode = mode;
    return sim::wrap(copy);
}

- (UIImage *)resizableImageWithCapInsets:(UIEdgeInsets)insets {
    auto copy = state(self);
    copy.caps = insets;
    return sim::wrap(copy);
}

@end
