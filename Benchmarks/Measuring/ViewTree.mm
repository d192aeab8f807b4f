#include "ViewTree.hpp"

#include <UIKit/UIKit.h>

#include <set>
#include <vector>

namespace bench {

namespace {

// One view. Objects are retained.
struct Copied {
    Class kind;
    int parent;    // in the list; -1: `place`
    UIView *place; // an older view
    CGRect frame;
    NSInteger tag;
    CGFloat alpha, cornerRadius;
    BOOL hidden, clips, interactive;
    UIViewContentMode mode;
    UIColor *background, *tint;
    NSString *name;
    UIImage *image;
    NSString *text;
    UIFont *font;
    UIColor *ink;
    NSTextAlignment alignment;
    NSLineBreakMode lineBreak;
    CGSize content;
};

// The platform's class that the view is, without what the extension adds to it.
Class plainClass(UIView *view) {
    for (Class kind : {[UIScrollView class], [UILabel class], [UIImageView class]})
        if ([view isKindOfClass:kind]) return kind;
    Class backdrop = NSClassFromString(@"_UIBackdropView");
    return backdrop && [view isKindOfClass:backdrop] ? backdrop : [UIView class];
}

Copied copyOf(UIView *view, int parent) {
    Copied copy = {};
    copy.kind = plainClass(view);
    copy.parent = parent;
    if (parent < 0) copy.place = [[view superview] retain];
    copy.frame = [view frame];
    copy.tag = [view tag];
    copy.alpha = [view alpha];
    copy.cornerRadius = [[view layer] cornerRadius];
    copy.hidden = [view isHidden];
    copy.clips = [view clipsToBounds];
    copy.interactive = [view isUserInteractionEnabled];
    copy.mode = [view contentMode];
    copy.background = [[view backgroundColor] retain];
    copy.name = [[[view layer] name] copy];
    if (copy.kind == [UIImageView class]) {
        copy.image = [[(UIImageView *)view image] retain];
        copy.tint = [[view tintColor] retain];
    } else if (copy.kind == [UILabel class]) {
        auto *label = (UILabel *)view;
        copy.text = [[label text] copy];
        copy.font = [[label font] retain];
        copy.ink = [[label textColor] retain];
        copy.alignment = [label textAlignment];
        copy.lineBreak = [label lineBreakMode];
    } else if (copy.kind == [UIScrollView class]) {
        copy.content = [(UIScrollView *)view contentSize];
    }
    return copy;
}

void forget(const Copied &copy) {
    for (id object : {(id)copy.place, (id)copy.background, (id)copy.tint, (id)copy.name, (id)copy.image,
                      (id)copy.text, (id)copy.font, (id)copy.ink})
        [object release];
}

// Retained.
UIView *made(const Copied &copy) {
    UIView *view = [[copy.kind alloc] initWithFrame:copy.frame];
    if (copy.tag) [view setTag:copy.tag];
    if (copy.alpha != 1) [view setAlpha:copy.alpha];
    if (copy.cornerRadius > 0) [[view layer] setCornerRadius:copy.cornerRadius];
    if (copy.hidden) [view setHidden:YES];
    if (copy.clips != [view clipsToBounds]) [view setClipsToBounds:copy.clips];
    if (copy.interactive != [view isUserInteractionEnabled])
        [view setUserInteractionEnabled:copy.interactive];
    if (copy.mode != [view contentMode]) [view setContentMode:copy.mode];
    if (copy.background) [view setBackgroundColor:copy.background];
    if (copy.name) [[view layer] setName:copy.name];
    if (copy.kind == [UIImageView class]) {
        [(UIImageView *)view setImage:copy.image];
        [view setTintColor:copy.tint];
    } else if (copy.kind == [UILabel class]) {
        auto *label = (UILabel *)view;
        [label setText:copy.text];
        [label setFont:copy.font];
        [label setTextColor:copy.ink];
        [label setTextAlignment:copy.alignment];
        [label setLineBreakMode:copy.lineBreak];
    } else if (copy.kind == [UIScrollView class]) {
        [(UIScrollView *)view setContentSize:copy.content];
    }
    return view;
}

template <typename Visit>
void forEachWindow(const Visit &visit) {
    for (UIWindow *window in [[UIApplication sharedApplication] windows]) visit(window);
}

} // namespace

struct ViewTree::Impl {
    std::set<UIView *> older;
    std::vector<Copied> copies;
    std::vector<UIView *> built; // retained

    void keepOlder(UIView *view) {
        older.insert(view);
        for (UIView *child in [view subviews]) keepOlder(child);
    }

    void copyNewer(UIView *view, int parent) {
        int index = -1;
        if (!older.contains(view)) {
            index = static_cast<int>(copies.size());
            copies.push_back(copyOf(view, parent));
        }
        for (UIView *child in [view subviews]) copyNewer(child, index);
    }
};

ViewTree::ViewTree() : impl_(std::make_unique<Impl>()) {}

ViewTree::~ViewTree() {
    for (const Copied &copy : impl_->copies) forget(copy);
}

void ViewTree::begin() {
    forEachWindow([this](UIWindow *window) { impl_->keepOlder(window); });
}

void ViewTree::record() {
    forEachWindow([this](UIWindow *window) { impl_->copyNewer(window, -1); });
}

void ViewTree::build() {
    auto &built = impl_->built;
    built.reserve(impl_->copies.size());
    for (const Copied &copy : impl_->copies) {
        UIView *view = made(copy);
        [copy.parent < 0 ? copy.place : built[copy.parent] addSubview:view];
        built.push_back(view);
    }
    for (size_t i = 0; i < built.size(); i++)
        if (impl_->copies[i].parent < 0) [built[i] layoutIfNeeded];
}

void ViewTree::remove() {
    for (size_t i = 0; i < impl_->built.size(); i++)
        if (impl_->copies[i].parent < 0) [impl_->built[i] removeFromSuperview];
    for (UIView *view : impl_->built) [view release];
    impl_->built.clear();
}

int ViewTree::views() const { return static_cast<int>(impl_->copies.size()); }

} // namespace bench
