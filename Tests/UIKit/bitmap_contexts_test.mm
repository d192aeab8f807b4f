// Proves how drawing contexts of the program's own take images in, and what bytes come out.
#include "Looks.h"

#include "Runtime/Process/Device.hpp"
#include "UIKit/Images/ImageState.h"
#include "UIKit/Images/UIImage+Further.h"

#include <UIKit/UIImage.h>

using namespace harness;

namespace {

using Bytes = std::vector<int>;

UIImage *imageOf(int width, int height, std::vector<uint32_t> pixels, double scale = 1) {
    auto bitmap = std::make_shared<render::Bitmap>(width, height, scale);
    bitmap->pixels = std::move(pixels);
    return sim::makeImage(bitmap);
}

// The first pixel of the open context.
Bytes firstPixel() {
    auto *data = static_cast<unsigned char *>(CGBitmapContextGetData(UIGraphicsGetCurrentContext()));
    return data ? Bytes(data, data + 4) : Bytes{};
}

Bytes bytesOf(UIImage *image) {
    CFDataRef data = CGDataProviderCopyData(CGImageGetDataProvider([image CGImage]));
    const unsigned char *bytes = CFDataGetBytePtr(data);
    Bytes result(bytes, bytes + CFDataGetLength(data));
    CFRelease(data);
    return result;
}

} // namespace

TEST(BitmapContext, HasTheSizeAndScaleThatItWasAskedFor) {
    struct {
        const char *what;
        void (*begin)();
        const char *size;
        size_t width, height; // pixels
        int alpha;
    } const cases[] = {
        {"one pixel a point",
         [] {
             UIGraphicsBeginImageContext({10, 5});
         },
         "10 5", 10, 5, 0},
        {"the screen's scale",
         [] {
             UIGraphicsBeginImageContextWithOptions({10, 5}, NO, 0);
         },
         "10 5", 30, 15, 0},
        {"another",
         [] {
             UIGraphicsBeginImageContextWithOptions({10, 5}, NO, 2);
         },
         "10 5", 20, 10, 0},
        {"a broken size",
         [] {
             UIGraphicsBeginImageContextWithOptions({0.5, 2.25}, NO, 2);
         },
         "0.5 2.5", 1, 5, 0},
        {"opaque",
         [] {
             UIGraphicsBeginImageContextWithOptions({1, 1}, YES, 1);
         },
         "1 1", 1, 1, 255},
    };
    sim::device().scale = 3;
    for (const auto &c : cases) {
        SCOPED_TRACE(c.what);
        c.begin();
        UIImage *image = UIGraphicsGetImageFromCurrentImageContext();
        EXPECT_EQ(text([image size]), c.size);
        EXPECT_EQ(CGImageGetWidth([image CGImage]), c.width);
        EXPECT_EQ(CGImageGetHeight([image CGImage]), c.height);
        EXPECT_EQ(CGImageGetBytesPerRow([image CGImage]), c.width * 4);
        EXPECT_EQ(CGImageGetBitsPerPixel([image CGImage]), 32u);
        EXPECT_EQ(firstPixel(), (Bytes{0, 0, 0, c.alpha}));
        UIGraphicsEndImageContext();
    }
}

TEST(BitmapContext, OutsideOfOneNothingIsDrawn) {
    EXPECT_EQ(UIGraphicsGetCurrentContext(), nullptr);
    EXPECT_EQ(UIGraphicsGetImageFromCurrentImageContext(), nil);
    EXPECT_EQ(CGBitmapContextGetData(nullptr), nullptr);
    [imageOf(1, 1, {0xffff0000}) drawInRect:CGRectMake(0, 0, 1, 1)];
    UIGraphicsEndImageContext();
    EXPECT_EQ(UIImagePNGRepresentation(nil), nil);
}

TEST(BitmapContext, TakesImagesAsTheirBlendModeSays) {
    // Onto a white pixel; bytes are blue, green, red, alpha.
    UIImage *half = imageOf(1, 1, {0x80800000});
    UIImage *redAndBlue = imageOf(2, 1, {0xffff0000, 0xff0000ff});
    CGRect pixel = CGRectMake(0, 0, 1, 1);
    struct {
        const char *what;
        std::function<void()> draw;
        Bytes bytes;
    } const cases[] = {
        {"over it", [=] { [half drawInRect:pixel]; }, {127, 127, 255, 255}},
        {"instead of it",
         [=] { [half drawInRect:pixel blendMode:kCGBlendModeCopy alpha:1]; },
         {0, 0, 128, 128}},
        {"faintly",
         [=] { [redAndBlue drawInRect:CGRectMake(0, 0, 2, 1) blendMode:kCGBlendModeNormal alpha:0.5]; },
         {127, 127, 255, 255}},
        {"shrunk to the average", [=] { [redAndBlue drawInRect:pixel]; }, {128, 0, 128, 255}},
        {"beside it", [=] { [half drawInRect:CGRectMake(1, 0, 1, 1)]; }, {255, 255, 255, 255}},
        {"of no size", [=] { [half drawInRect:CGRectZero]; }, {255, 255, 255, 255}},
    };
    for (const auto &c : cases) {
        SCOPED_TRACE(c.what);
        UIGraphicsBeginImageContext({1, 1});
        [imageOf(1, 1, {0xffffffff}) drawInRect:pixel];
        c.draw();
        Bytes bytes = firstPixel();
        ASSERT_EQ(bytes.size(), 4u);
        for (size_t i = 0; i < 4; ++i) EXPECT_NEAR(bytes[i], c.bytes[i], 1) << "byte " << i;
        UIGraphicsEndImageContext();
    }
}

TEST(BitmapContext, Nests) {
    UIGraphicsBeginImageContext({1, 1});
    CGContextRef outer = UIGraphicsGetCurrentContext();
    UIGraphicsBeginImageContext({1, 1});
    EXPECT_NE(UIGraphicsGetCurrentContext(), outer);
    [imageOf(1, 1, {0xffff0000}) drawInRect:CGRectMake(0, 0, 1, 1)];
    UIGraphicsEndImageContext();
    EXPECT_EQ(UIGraphicsGetCurrentContext(), outer);
    EXPECT_EQ(firstPixel(), (Bytes{0, 0, 0, 0})) << "what is drawn goes to the innermost";
    UIGraphicsEndImageContext();
    EXPECT_EQ(UIGraphicsGetCurrentContext(), nullptr);
}

TEST(BitmapContext, AnImageOfItIsAMomentOfIt) {
    UIGraphicsBeginImageContext({1, 1});
    [imageOf(1, 1, {0xffff0000}) drawInRect:CGRectMake(0, 0, 1, 1)];
    UIImage *image = UIGraphicsGetImageFromCurrentImageContext();
    [imageOf(1, 1, {0xff00ff00}) drawInRect:CGRectMake(0, 0, 1, 1)];
    UIGraphicsEndImageContext();
    EXPECT_EQ(bytesOf(image), (Bytes{0, 0, 255, 255})) << "blue first, as the context has them";
}

TEST(ImageBytes, OfAFileBeginWithRedAndAreNotMultiplied) {
    UIImage *image = imageOf(2, 1, {0xff102030, 0x80400000});
    EXPECT_EQ(bytesOf(image), (Bytes{0x10, 0x20, 0x30, 0xff, 0x80, 0, 0, 0x80}));
    NSData *file = UIImagePNGRepresentation(image);
    std::string bytes(static_cast<const char *>([file bytes]), [file length]);
    auto again = render::decodePng(bytes, 1);
    ASSERT_TRUE(again);
    EXPECT_EQ(again->pixels, (std::vector<uint32_t>{0xff102030, 0x80400000}));
}

// Opaque pixels are turned many at a time; what a pixel becomes must not depend on its neighbours.
TEST(BitmapContext, HandsOutEachPixelOfAPictureAsIfItWereAlone) {
    const uint32_t kinds[] = {0xff123456, 0x80402010, 0, 0xffabcdef};
    for (size_t other = 0; other < 40; ++other) {
        std::vector<uint32_t> pixels(37, kinds[0]);
        for (size_t i = other; i < pixels.size(); i += 11) pixels[i] = kinds[1 + i % 3];
        UIImage *image = imageOf(37, 1, pixels);
        Bytes all = bytesOf(image);
        for (size_t i = 0; i < pixels.size(); ++i)
            EXPECT_EQ(Bytes(&all[4 * i], &all[4 * i] + 4), bytesOf(imageOf(1, 1, {pixels[i]})))
                << other << ", " << i;
        EXPECT_EQ(bytesOf(image), all) << "asked for again";
    }
    EXPECT_EQ(bytesOf(imageOf(1, 1, {kinds[0]})), (Bytes{0x12, 0x34, 0x56, 0xff}));
}
