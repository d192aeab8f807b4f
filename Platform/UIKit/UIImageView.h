// The view of an image.
#pragma once

#include <UIKit/UIImage.h>
#include <UIKit/UIView.h>

// Takes no touches unless told to.
@interface UIImageView : UIView {
@public
    void *_imageViewState;
}
// A view of the image's size; of no size for nil.
- (instancetype)initWithImage:(UIImage *)image;
@property (nonatomic, retain) UIImage *image;
@end
