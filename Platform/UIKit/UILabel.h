// The view of a text.
#pragma once

#include <UIKit/UIFont.h>
#include <UIKit/UIView.h>

typedef NSInteger NSTextAlignment;
enum { NSTextAlignmentLeft = 0, NSTextAlignmentCenter = 1, NSTextAlignmentRight = 2 };

typedef NSInteger NSLineBreakMode;
enum {
    NSLineBreakByWordWrapping = 0,
    NSLineBreakByCharWrapping = 1,
    NSLineBreakByClipping = 2,
    NSLineBreakByTruncatingHead = 3,
    NSLineBreakByTruncatingTail = 4,
    NSLineBreakByTruncatingMiddle = 5
};

@interface UILabel : UIView {
@public
    void *_labelState;
}
@property (nonatomic, copy) NSString *text;
@property (nonatomic, retain) UIFont *font; // system font, 17 points
@property (nonatomic, retain) UIColor *textColor;
@property (nonatomic) NSTextAlignment textAlignment;
@property (nonatomic) NSLineBreakMode lineBreakMode; // truncates the tail
@property (nonatomic) NSInteger numberOfLines;       // 1; 0 is as many as it takes
@end
