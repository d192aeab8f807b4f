#include "ViewSnapshot.h"

#include "Screen.h"
#include "UIKit/Controls/UIControl+Further.h"
#include "UIKit/CoreGraphics/CGObjects.h"
#include "UIKit/Images/ImageState.h"
#include "UIKit/Views/ViewState.h"
#include "ViewAnimations.h"
#include "ViewSearch.h"

#include <objc/runtime.h>

#include <cmath>
#include <set>

namespace sim {

namespace {

Value text(NSString *string) { return string ? Value([string UTF8String]) : Value(); }

// "#rrggbbaa"; "pattern" for a colour that tiles an image; null for none.
Value colorOf(UIColor *color) {
    if (!color) return {};
    const auto &paint = object([color CGColor])->paint;
    return std::holds_alternative<render::Rgba>(paint) ? colorText(std::get<render::Rgba>(paint)) : "pattern";
}

Value background(UIView *view) {
    Value color = colorOf([view backgroundColor]);
    bool clear = color.isString() && color.string().starts_with("#") && color.string().ends_with("00");
    return clear ? Value() : color;
}

// The result of a method without arguments when the view has it and gives an object of that class; nil
// otherwise.
id objectFrom(id owner, SEL selector, Class wanted) {
    if (![owner respondsToSelector:selector]) return nil;
    id found = [owner performSelector:selector];
    return [found isKindOfClass:wanted] ? found : nil;
}

} // namespace

Value imageOf(UIView *view) {
    if ([view isKindOfClass:[UIStatusBarItemView class]])
        return text([[static_cast<UIStatusBarItemView *>(view) item] indicatorName]);
    id image = objectFrom(view, @selector(image), [UIImage class]);
    if (!image) image = objectFrom(view, @selector(contentsImage), [UIImage class]);
    if (!image || state(static_cast<UIImage *>(image)).source.empty()) return {};
    return state(static_cast<UIImage *>(image)).source;
}

namespace {

void addRect(Object &view, CGRect rect) {
    view["x"] = rounded(rect.origin.x);
    view["y"] = rounded(rect.origin.y);
    view["w"] = rounded(rect.size.width);
    view["h"] = rounded(rect.size.height);
}

void addText(Object &fields, UIView *view) {
    fields["text"] = text(textOf(view));
    if (UIFont *font = objectFrom(view, @selector(font), [UIFont class])) {
        fields["font"] = text([font fontName]);
        fields["font_size"] = rounded([font pointSize]);
    }
    fields["text_color"] = colorOf(objectFrom(view, @selector(textColor), [UIColor class]));
    if ([view isKindOfClass:[UIButton class]])
        fields["title"] = text([static_cast<UIButton *>(view) currentTitle]);
}

void addLook(Object &fields, UIView *view) {
    CALayer *layer = [view layer];
    const auto &model = state(layer).model;
    fields["alpha"] = rounded(model.opacity);
    fields["presented_alpha"] = rounded(presented(layer).opacity);
    fields["hidden"] = static_cast<bool>([view isHidden]);
    fields["background"] = background(view);
    fields["tint"] = colorOf([view tintColor]);
    fields["corner_radius"] = rounded(model.cornerRadius);
    fields["border_width"] = rounded(model.borderWidth);
    fields["border_color"] = colorText(model.borderColor);
    fields["shadow_opacity"] = rounded(model.shadowOpacity);
    fields["shadow_radius"] = rounded(model.shadowRadius);
    fields["shadow_color"] = colorText(model.shadowColor);
    fields["z"] = rounded(model.zPosition);
    CGAffineTransform t = [view transform];
    Array transform;
    for (CGFloat element : {t.a, t.b, t.c, t.d, t.tx, t.ty}) transform.emplace_back(rounded(element));
    fields["transform"] = transform;
}

void addScroll(Object &fields, UIView *view) {
    if (![view isKindOfClass:[UIScrollView class]]) return;
    auto *scroll = static_cast<UIScrollView *>(view);
    fields["scroll"] = Object{{"x", rounded([scroll contentOffset].x)},
                              {"y", rounded([scroll contentOffset].y)},
                              {"content_w", rounded([scroll contentSize].width)},
                              {"content_h", rounded([scroll contentSize].height)},
                              {"paging", static_cast<bool>([scroll isPagingEnabled])},
                              {"enabled", static_cast<bool>([scroll isScrollEnabled])}};
}

// The state of fingerprint drawings, whose class old systems lack.
void addState(Object &fields, UIView *view) {
    Class glyphs = objc_lookUpClass("PKGlyphView");
    if (glyphs && [view isKindOfClass:glyphs])
        fields["state"] = static_cast<int64_t>([[view valueForKey:@"state"] integerValue]);
}

Value fields(UIView *view) {
    Object result{{"number", viewNumber(view)},
                  {"class", object_getClassName(view)},
                  {"tag", static_cast<int64_t>([view tag])},
                  {"name", text([[view layer] name])},
                  {"interactive", static_cast<bool>([view isUserInteractionEnabled])},
                  {"image", imageOf(view)},
                  {"animations", animationsOf([view layer])}};
    addRect(result, [view frame]);
    Object screen;
    addRect(screen, presentedOnScreen(view));
    result["screen"] = screen;
    addText(result, view);
    addLook(result, view);
    addScroll(result, view);
    addState(result, view);
    if ([view isKindOfClass:[UIWindow class]])
        result["level"] = rounded([static_cast<UIWindow *>(view) windowLevel]);
    Array gestures, children;
    for (UIGestureRecognizer *recognizer : state(view).recognizers)
        gestures.emplace_back(object_getClassName(recognizer));
    for (UIView *child : drawnSubviews(view)) children.emplace_back(viewNumber(child));
    result["gestures"] = gestures;
    result["children"] = children;
    return result;
}

void collect(UIView *view, std::set<int64_t> &seen, Array &views) {
    if (!seen.insert(viewNumber(view)).second) return;
    views.push_back(fields(view));
    for (UIView *child : drawnSubviews(view)) collect(child, seen, views);
}

} // namespace

namespace {

std::string plainText(const Value &text) { return text.isString() ? text.string() : std::string(); }

double finite(double number) { return std::isfinite(number) ? rounded(number) : 0; }

} // namespace

ViewLook lookOf(UIView *view, const LayerProperties &shown) {
    UIFont *font = objectFrom(view, @selector(font), [UIFont class]);
    UIColor *ink = objectFrom(view, @selector(textColor), [UIColor class]);
    UIScrollView *scroll = [view isKindOfClass:[UIScrollView class]] ? (UIScrollView *)view : nil;
    return {
        .alpha = finite(shown.opacity), .background = plainText(background(view)),
        .cornerRadius = finite(shown.cornerRadius), .borderWidth = finite(shown.borderWidth),
        .ink = plainText(colorOf(ink ? ink : [view tintColor])),
        .fontSize = font ? finite([font pointSize]) : 0,
        .picture = objectFrom(view, @selector(image), [UIImage class]) != nil,
        .scrolled = scroll ? finite([scroll contentOffset].x) : 0,
        .contentWidth = scroll ? finite([scroll contentSize].width) : 0
    };
}

Array lineage(UIView *view) {
    Array result;
    for (; view; view = [view superview]) result.push_back(fields(view));
    return result;
}

Value snapshot(const std::vector<UIView *> &views) {
    Array matches, all;
    std::set<int64_t> seen;
    for (UIView *view : views) {
        matches.emplace_back(viewNumber(view));
        collect(view, seen, all);
    }
    return Object{{"matches", matches}, {"views", all}};
}

} // namespace sim
