#include "PSTableCell+Further.h"
#include "Preferences/Specifiers/PSSpecifier+Further.h"
#include "Preferences/Specifiers/SpecifierState.h"
#include "Runtime/Objc/LazyState.hpp"
#include "Runtime/Objc/Ownership.h"
#include "UIKit/UIKit+Further.h"

#include <Preferences/PSTableCell.h>

#include <objc/runtime.h>

#include <iterator>

namespace {

struct TableCellState {
    PSSpecifier *specifier = nil; // retained
    PSCellType type = PSGroupCell;
    id target = nil, cellTarget = nil; // not retained
    SEL action = nullptr, cellAction = nullptr;
    bool enabled = true;
    id value = nil; // retained
};

TableCellState &state(PSTableCell *cell) { return sim::lazyState<TableCellState>(cell->_tableCellState); }

constexpr const char *kTypeNames[] = {
    "PSGroupCell",          "PSLinkCell",    "PSLinkListCell",     "PSListItemCell",
    "PSTitleValueCell",     "PSSliderCell",  "PSSwitchCell",       "PSStaticTextCell",
    "PSEditTextCell",       "PSSegmentCell", "PSGiantIconCell",    "PSGiantCell",
    "PSSecureEditTextCell", "PSButtonCell",  "PSEditTextViewCell", "PSSpinnerCell"};

// What the row's end shows.
UITableViewCellAccessoryType accessory(PSCellType type) {
    bool leadsOn = type == PSLinkCell || type == PSLinkListCell;
    return leadsOn ? UITableViewCellAccessoryDisclosureIndicator : UITableViewCellAccessoryNone;
}

bool isSelectable(PSCellType type) {
    return type == PSLinkCell || type == PSLinkListCell || type == PSListItemCell || type == PSButtonCell;
}

NSTextAlignment alignment(PSSpecifier *specifier) {
    switch ([[specifier propertyForKey:@"alignment"] integerValue]) {
    case PSAlignmentCenter:
        return NSTextAlignmentCenter;
    case PSAlignmentRight:
        return NSTextAlignmentRight;
    default:
        return NSTextAlignmentLeft;
    }
}

} // namespace

@implementation PSTableCell

+ (PSCellType)cellTypeFromString:(NSString *)string {
    for (size_t i = 0; i < std::size(kTypeNames); ++i)
        if ([string isEqualToString:[NSString stringWithUTF8String:kTypeNames[i]]])
            return static_cast<PSCellType>(i);
    return PSLinkCell;
}

+ (Class)cellClassForSpecifier:(PSSpecifier *)specifier {
    if (Class own = [specifier classForProperty:@"cellClass"]) return own;
    switch ([specifier cellType]) {
    case PSSwitchCell:
        return [PSSwitchTableCell class];
    case PSSegmentCell:
        return [PSSegmentTableCell class];
    default:
        return [PSTableCell class];
    }
}

- (instancetype)initWithStyle:(UITableViewCellStyle)style
              reuseIdentifier:(NSString *)identifier
                    specifier:(PSSpecifier *)specifier {
    if (!(self = [super initWithStyle:style reuseIdentifier:identifier])) return nil;
    [self setSpecifier:specifier];
    return self;
}

- (void)dealloc {
    auto &mine = state(self);
    [mine.specifier release];
    [mine.value release];
    delete &mine;
    [super dealloc];
}

- (void)refreshCellContentsWithSpecifier:(PSSpecifier *)specifier {
    [self setSpecifier:specifier];
    [self setType:[specifier cellType]];
    [self setCellTarget:[specifier target]];
    [self setCellAction:specifier->setter];
    [[self textLabel] setText:[specifier name]];
    [[self imageView] setImage:[specifier propertyForKey:@"iconImage"]];
    [self setAccessoryType:accessory([self type])];
    [self setSelectionStyle:isSelectable([self type]) ? UITableViewCellSelectionStyleDefault
                                                      : UITableViewCellSelectionStyleNone];
    bool button = [self type] == PSButtonCell;
    [[self textLabel] setTextAlignment:button ? alignment(specifier) : NSTextAlignmentLeft];
    [[self textLabel] setTextColor:button ? [self tintColor] : [UIColor blackColor]];
    [self setValue:[specifier performGetter]];
    NSNumber *enabled = [specifier propertyForKey:@"enabled"];
    [self setCellEnabled:!enabled || [enabled boolValue]];
    [self setNeedsLayout];
}

- (PSSpecifier *)specifier {
    return state(self).specifier;
}
- (void)setSpecifier:(PSSpecifier *)specifier {
    sim::retainInto(state(self).specifier, specifier);
}

- (PSCellType)type {
    return state(self).type;
}
- (void)setType:(PSCellType)type {
    state(self).type = type;
}

- (id)target {
    return state(self).target;
}
- (void)setTarget:(id)target {
    state(self).target = target;
}
- (SEL)action {
    return state(self).action;
}
- (void)setAction:(SEL)action {
    state(self).action = action;
}
- (id)cellTarget {
    return state(self).cellTarget;
}
- (void)setCellTarget:(id)target {
    state(self).cellTarget = target;
}
- (SEL)cellAction {
    return state(self).cellAction;
}
- (void)setCellAction:(SEL)action {
    state(self).cellAction = action;
}

- (BOOL)cellEnabled {
    return state(self).enabled;
}
- (void)setCellEnabled:(BOOL)enabled {
    state(self).enabled = enabled;
    [[self textLabel] setAlpha:enabled ? 1 : 0.45];
    [self setUserInteractionEnabled:enabled];
}

- (id)value {
    return state(self).value;
}
// Shown at the row's end: a list's title of it, or itself.
- (void)setValue:(id)value {
    sim::retainInto(state(self).value, value);
    PSSpecifier *specifier = state(self).specifier;
    NSString *shown = [specifier titleForValue:value];
    if (!shown && [self type] == PSTitleValueCell) shown = [value description];
    [[self detailTextLabel] setText:shown];
    [self setNeedsLayout];
}

- (UILabel *)titleLabel {
    return [self textLabel];
}
- (UILabel *)valueLabel {
    return [self detailTextLabel];
}
- (NSString *)title {
    return [[self textLabel] text];
}
- (BOOL)canReload {
    return YES;
}

@end
