#include "TableState.h"

#include "Runtime/Objc/LazyState.hpp"
#include "Runtime/Objc/Ownership.h"
#include "Runtime/Process/Device.hpp"
#include "Runtime/Process/Pixels.hpp"
#include "UIKit/UIKit+Further.h"
#include "UIKit/Views/ViewState.h"
#include "UITableViewCell+Further.h"

#include <UIKit/UIContentSizeCategory.h>

#include <algorithm>

// The colour behind a row, with the corners of its place.
@interface UITableViewCellBackground : UIView {
@public
    sim::RowPlace _place;
    render::Rgba _color;
}
@end

// The lines around a row: the whole width at the ends of a group that reaches the edges, from the text on
// between rows.
@interface UITableViewCellSeparators : UIView {
@public
    sim::RowPlace _place;
    CGFloat _inset;
    UIColor *_color; // retained by the cell
}
@end

// The chevron at the end of a row that leads somewhere, and the tick of one that is chosen.
@interface UITableViewCellAccessory : UIView {
@public
    UITableViewCellAccessoryType _type;
}
@end

namespace {

constexpr CGFloat kGap = 15, kRadius = 5;
constexpr double kFadeSeconds = 0.3;
constexpr render::Rgba kSelected = {217 / 255.0, 217 / 255.0, 217 / 255.0, 1};

CGFloat margin() { return sim::device().scale > 2 ? 20 : 15; }

struct CellState {
    NSString *identifier = nil; // retained
    UITableViewCellStyle style = UITableViewCellStyleDefault;
    UIView *content = nil;                                                  // retained by the cell
    UIImageView *image = nil;                                               // retained by the content
    UILabel *text = nil, *detail = nil;                                     // the same
    UITableViewCellBackground *background = nil, *selectedBackground = nil; // retained by the cell
    UITableViewCellSeparators *separators = nil;                            // the same
    UIView *accessory = nil;                                                // the same; as shown
    UIView *ownBackground = nil;                                            // retained
    UIView *accessoryView = nil;                                            // retained
    UITableViewCellAccessoryType accessoryType = UITableViewCellAccessoryNone;
    UITableViewCellSelectionStyle selectionStyle = UITableViewCellSelectionStyleDefault;
    UIColor *separator = nil; // retained
    sim::RowPlace place;
    bool selected = false, highlighted = false, inTable = false;
};

CellState &state(UITableViewCell *cell) { return sim::lazyState<CellState>(cell->_cellState); }

UILabel *makeLabel(UIView *parent, NSString *style, UIColor *color) {
    UILabel *label = [[[UILabel alloc] initWithFrame:CGRectZero] autorelease];
    [label setFont:[UIFont preferredFontForTextStyle:style]];
    [label setTextColor:color];
    [parent addSubview:label];
    return label;
}

UITableViewCellBackground *makeBackground(UITableViewCell *cell, render::Rgba color, NSInteger index) {
    auto *view = [[[UITableViewCellBackground alloc] initWithFrame:[cell bounds]] autorelease];
    view->_color = color;
    [view setUserInteractionEnabled:NO];
    [view setOpaque:NO];
    [view setAutoresizingMask:UIViewAutoresizingFlexibleWidth | UIViewAutoresizingFlexibleHeight];
    [cell insertSubview:view atIndex:index];
    return view;
}

UITableViewCellSeparators *makeSeparators(UITableViewCell *cell) {
    auto *view = [[[UITableViewCellSeparators alloc] initWithFrame:[cell bounds]] autorelease];
    [view setUserInteractionEnabled:NO];
    [view setOpaque:NO];
    [view setAutoresizingMask:UIViewAutoresizingFlexibleWidth | UIViewAutoresizingFlexibleHeight];
    [cell insertSubview:view atIndex:2];
    return view;
}

void showSelection(UITableViewCell *cell, bool animated) {
    auto &mine = state(cell);
    bool shown =
        (mine.selected || mine.highlighted) && mine.selectionStyle != UITableViewCellSelectionStyleNone;
    UIView *view = mine.selectedBackground;
    CGFloat alpha = shown ? 1 : 0;
    if ([view alpha] == alpha) return;
    if (!animated) return [view setAlpha:alpha];
    [UIView animateWithDuration:kFadeSeconds animations:^{ [view setAlpha:alpha]; }];
}

void updateAccessory(UITableViewCell *cell) {
    auto &mine = state(cell);
    [mine.accessory removeFromSuperview];
    mine.accessory = mine.accessoryView;
    if (!mine.accessory && mine.accessoryType != UITableViewCellAccessoryNone) {
        bool tick = mine.accessoryType == UITableViewCellAccessoryCheckmark;
        CGRect frame = tick ? CGRectMake(0, 0, 14, 11) : CGRectMake(0, 0, 8, 13);
        auto *view = [[[UITableViewCellAccessory alloc] initWithFrame:frame] autorelease];
        view->_type = mine.accessoryType;
        [view setUserInteractionEnabled:NO];
        [view setOpaque:NO];
        mine.accessory = view;
    }
    if (mine.accessory) [cell addSubview:mine.accessory];
    [cell setNeedsLayout];
}

CGRect centred(CGSize size, CGFloat x, CGFloat height) {
    return {{sim::wholePixels(x), sim::wholePixels((height - size.height) / 2)}, size};
}

// The two texts beside one another: the title keeps its width, the detail gets the rest, at the right.
void placeTexts(const CellState &mine, CGFloat from, CGFloat to, CGFloat height) {
    CGFloat room = std::max<CGFloat>(to - from, 0);
    CGSize text = [mine.text sizeThatFits:CGSizeMake(room, height)];
    CGSize detail = [mine.detail sizeThatFits:CGSizeMake(room, height)];
    if (mine.style == UITableViewCellStyleSubtitle && detail.height > 0) {
        CGFloat top = sim::wholePixels((height - text.height - detail.height) / 2);
        [mine.text setFrame:CGRectMake(from, top, room, text.height)];
        [mine.detail setFrame:CGRectMake(from, top + text.height, room, detail.height)];
        return;
    }
    bool beside = mine.detail && detail.width > 0;
    CGFloat textWidth = beside ? std::min(text.width, room) : room;
    [mine.text setFrame:centred({textWidth, text.height}, from, height)];
    if (!mine.detail) return;
    CGFloat detailWidth = std::clamp(detail.width, CGFloat(0), std::max<CGFloat>(room - textWidth - 6, 0));
    [mine.detail setFrame:centred({detailWidth, detail.height}, to - detailWidth, height)];
}

// The group's outline on the sides where the row is its end.
render::Path outline(const render::Rect &box, const sim::RowPlace &place) {
    if (!place.rounded || !(place.first || place.last)) return render::Path::rect(box);
    render::Rect grown = box;
    // Corners that are not to be round are cut off by the row's own edge.
    if (!place.first) grown.y -= 2 * kRadius;
    if (!place.first || !place.last) grown.height += 2 * kRadius;
    return render::Path::roundedRect(grown, kRadius);
}

} // namespace

namespace sim {

void setPlace(UITableViewCell *cell, RowPlace place) {
    auto &mine = ::state(cell);
    mine.place = place;
    if (!mine.inTable) {
        mine.inTable = true;
        mine.background = makeBackground(cell, {1, 1, 1, 1}, 0);
        mine.selectedBackground = makeBackground(cell, kSelected, 1);
        [mine.selectedBackground setAlpha:0];
        mine.separators = makeSeparators(cell);
        showSelection(cell, false);
    }
    mine.background->_place = mine.selectedBackground->_place = mine.separators->_place = place;
    mine.separators->_color = mine.separator;
    [mine.background setHidden:mine.ownBackground != nil];
    [cell setClipsToBounds:place.rounded];
}

void setSeparatorColor(UITableViewCell *cell, UIColor *color) {
    [color retain];
    [::state(cell).separator release];
    ::state(cell).separator = color;
    if (::state(cell).separators) ::state(cell).separators->_color = color;
}

} // namespace sim

@implementation UITableViewCellBackground

- (void)appendDrawingsTo:(render::Node &)node {
    node.drawings.push_back(
        render::Shape{.path = outline(node.bounds, _place), .fill = _color, .stroke = {}});
}

@end

@implementation UITableViewCellSeparators

- (void)appendDrawingsTo:(render::Node &)node {
    if (!_color) return;
    double hair = 1 / sim::device().scale, width = node.bounds.width, bottom = node.bounds.height - hair;
    render::Rgba color = sim::flatColor(sim::object([_color CGColor])->paint);
    auto line = [&](double x, double y) {
        node.drawings.push_back(
            render::Shape{.path = render::Path::rect({x, y, width - x, hair}), .fill = color, .stroke = {}});
    };
    bool ends = _place.grouped && !_place.rounded;
    if (_place.first && ends) line(0, 0);
    if (!_place.last) line(_inset, bottom);
    if (_place.last && (ends || !_place.grouped)) line(ends ? 0 : _inset, bottom);
}

@end

@implementation UITableViewCellAccessory

- (void)appendDrawingsTo:(render::Node &)node {
    using Verb = render::PathElement::Verb;
    bool tick = _type == UITableViewCellAccessoryCheckmark;
    double w = node.bounds.width, h = node.bounds.height;
    render::Path path =
        tick ? render::Path{{{Verb::move, {{1, h * 0.55}}},
                             {Verb::line, {{w * 0.36, h - 1.2}}},
                             {Verb::line, {{w - 1, 1}}}}}
             : render::Path{
                   {{Verb::move, {{1, 1}}}, {Verb::line, {{w - 1.5, h / 2}}}, {Verb::line, {{1, h - 1}}}}};
    render::Rgba blue = sim::flatColor(sim::object([[self tintColor] CGColor])->paint);
    render::Rgba grey{199 / 255.0, 199 / 255.0, 204 / 255.0, 1};
    node.drawings.push_back(
        render::Shape{.path = path, .fill = {}, .stroke = tick ? blue : grey, .strokeWidth = 2});
}

@end

@implementation UITableViewCell

- (instancetype)initWithFrame:(CGRect)frame {
    return [self initWithStyle:UITableViewCellStyleDefault reuseIdentifier:nil];
}

- (instancetype)initWithStyle:(UITableViewCellStyle)style reuseIdentifier:(NSString *)identifier {
    constexpr CGRect kStart = {{0, 0}, {320, 44}};
    if (!(self = [super initWithFrame:kStart])) return nil;
    auto &mine = state(self);
    mine.style = style;
    mine.identifier = [identifier copy];
    [self setOpaque:NO];
    mine.content = [[[UIView alloc] initWithFrame:kStart] autorelease];
    [mine.content setOpaque:NO];
    [self addSubview:mine.content];
    mine.image = [[[UIImageView alloc] initWithFrame:CGRectZero] autorelease];
    [mine.content addSubview:mine.image];
    mine.text = makeLabel(mine.content, UIFontTextStyleBody, [UIColor blackColor]);
    if (style == UITableViewCellStyleDefault) return self;
    bool subtitle = style == UITableViewCellStyleSubtitle;
    mine.detail = makeLabel(mine.content, subtitle ? UIFontTextStyleCaption2 : UIFontTextStyleBody,
                            subtitle ? [UIColor blackColor]
                                     : [UIColor colorWithRed:142 / 255.0
                                                       green:142 / 255.0
                                                        blue:147 / 255.0
                                                       alpha:1]);
    return self;
}

- (void)dealloc {
    auto *mine = &state(self);
    [mine->identifier release];
    [mine->ownBackground release];
    [mine->accessoryView release];
    [mine->separator release];
    delete mine;
    _cellState = nullptr;
    [super dealloc];
}

- (NSString *)reuseIdentifier {
    return state(self).identifier;
}
- (UIView *)contentView {
    return state(self).content;
}
- (UIImageView *)imageView {
    return state(self).image;
}
- (UILabel *)textLabel {
    return state(self).text;
}
- (UILabel *)detailTextLabel {
    return state(self).detail;
}

- (UITableViewCellSelectionStyle)selectionStyle {
    return state(self).selectionStyle;
}
- (void)setSelectionStyle:(UITableViewCellSelectionStyle)style {
    state(self).selectionStyle = style;
    showSelection(self, false);
}

- (UITableViewCellAccessoryType)accessoryType {
    return state(self).accessoryType;
}
- (void)setAccessoryType:(UITableViewCellAccessoryType)type {
    state(self).accessoryType = type;
    updateAccessory(self);
}

- (UIView *)accessoryView {
    return state(self).accessoryView;
}
- (void)setAccessoryView:(UIView *)view {
    [view retain];
    UIView *old = state(self).accessoryView;
    state(self).accessoryView = view;
    updateAccessory(self);
    [old release];
}

- (UIView *)backgroundView {
    return state(self).ownBackground;
}
- (void)setBackgroundView:(UIView *)view {
    auto &mine = state(self);
    [mine.ownBackground removeFromSuperview];
    sim::retainInto(mine.ownBackground, view);
    [mine.background setHidden:view != nil];
    [view setFrame:[self bounds]];
    [view setAutoresizingMask:UIViewAutoresizingFlexibleWidth | UIViewAutoresizingFlexibleHeight];
    if (view) [self insertSubview:view atIndex:0];
}

- (BOOL)isSelected {
    return state(self).selected;
}
- (void)setSelected:(BOOL)selected {
    [self setSelected:selected animated:NO];
}
- (void)setSelected:(BOOL)selected animated:(BOOL)animated {
    state(self).selected = selected;
    showSelection(self, animated);
}

- (BOOL)isHighlighted {
    return state(self).highlighted;
}
- (void)setHighlighted:(BOOL)highlighted {
    [self setHighlighted:highlighted animated:NO];
}
- (void)setHighlighted:(BOOL)highlighted animated:(BOOL)animated {
    state(self).highlighted = highlighted;
    showSelection(self, animated);
}

- (void)prepareForReuse {
    state(self).selected = state(self).highlighted = false;
    showSelection(self, false);
}

- (void)layoutSubviews {
    [super layoutSubviews];
    auto &mine = state(self);
    CGSize size = [self bounds].size;
    CGFloat right = size.width;
    if (mine.accessory) {
        CGSize accessory = [mine.accessory bounds].size;
        [mine.accessory setFrame:centred(accessory, size.width - margin() - accessory.width, size.height)];
        right = [mine.accessory frame].origin.x - 8;
    }
    [mine.content setFrame:CGRectMake(0, 0, right, size.height)];
    CGFloat left = margin();
    if (UIImage *image = [mine.image image]) {
        [mine.image setFrame:centred([image size], left, size.height)];
        left += [image size].width + kGap;
    }
    if (mine.separators) mine.separators->_inset = left;
    placeTexts(mine, left, mine.accessory ? right : right - margin(), size.height);
}

@end
