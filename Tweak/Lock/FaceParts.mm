#include "Tweak/Lock/FaceParts.h"

#include "Tweak/Core/Accessibility/Aids.h"
#include "Tweak/Core/Accessibility/Speech.h"
#include "Tweak/Core/PanelViews.h"
#include "Tweak/Core/State.h"
#include "Tweak/Core/Tags.h"
#include "Tweak/Core/Translator.h"
#include "Tweak/Lock/CodeEntry.hpp"

namespace pendix {

namespace {

constexpr CGFloat kTextSize = 20;
constexpr CGFloat kButtonAlpha = 0.1;

} // namespace

UIView *addFace(const LockFacesInput &input, NSInteger tag, CGFloat height) {
    UIView *face = [[UIView alloc] initWithFrame:CGRectMake(0, 0, input.width, height)];
    face.tag = tag;
    face.backgroundColor = [UIColor clearColor];
    [input.content addSubview:face];
    return [face autorelease];
}

UILabel *addFaceText(UIView *face, CGRect frame, NSString *text, NSInteger lines, const Scheme &scheme) {
    UILabel *label = [[UILabel alloc] initWithFrame:frame];
    label.tag = tags::faceTitle;
    label.text = text;
    label.textAlignment = NSTextAlignmentCenter;
    label.numberOfLines = lines;
    label.textColor = scheme.ink;
    label.font = textFont(@"HelveticaNeue-Light", kTextSize);
    [face addSubview:label];
    return [label autorelease];
}

UIButton *addFaceButton(UIView *face, const LockFacesInput &input, CGRect frame, NSString *key, SEL action) {
    UIButton *button = [[UIButton alloc] initWithFrame:frame];
    button.backgroundColor = [UIColor colorWithWhite:1 alpha:kButtonAlpha];
    [button setTitle:Translator(key) forState:UIControlStateNormal];
    [button setTitleColor:input.scheme.ink forState:UIControlStateNormal];
    [button addTarget:input.springBoard action:action forControlEvents:UIControlEventTouchUpInside];
    [face addSubview:button];
    return [button autorelease];
}

UIView *lockFace(NSInteger tag) { return subviewWithTag(contentView(), tag); }

void letSpeak(UIView *face) {
    const NSInteger faces[] = {tags::askFace, tags::fingerFace, tags::keypadFace};
    for (NSInteger tag : faces) {
        UIView *each = lockFace(tag);
        each.accessibilityElementsHidden = each != face;
    }
}

void orderFace(UIView *face) {
    NSMutableArray *title = [NSMutableArray array], *keys = [NSMutableArray array],
                   *buttons = [NSMutableArray array];
    for (UIView *view in face.subviews) {
        if (view.tag == tags::faceTitle) [title addObject:view];
        if ([view isKindOfClass:[UIButton class]]) [buttons addObject:view];
    }
    const int order[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 0};
    for (int digit : order)
        if (UIView *key = subviewWithTag(face, keyOfDigit(digit))) [keys addObject:key];
    [title addObjectsFromArray:keys];
    [title addObjectsFromArray:buttons];
    readInOrder(face, title);
}

UIView *spokenFaceTitle() {
    const NSInteger faces[] = {tags::askFace, tags::fingerFace, tags::keypadFace};
    for (NSInteger tag : faces) {
        UIView *face = lockFace(tag);
        if (face && !face.accessibilityElementsHidden) return subviewWithTag(face, tags::faceTitle);
    }
    return nil;
}

BOOL isShown(UIView *face) { return isShow && face.window; }

BOOL fingerFaceIsChosen() {
    UIView *finger = lockFace(tags::fingerFace);
    return finger && finger.frame.origin.x == 0;
}

void setX(UIView *view, CGFloat x) {
    CGRect frame = view.frame;
    frame.origin.x = x;
    view.frame = frame;
}

} // namespace pendix
