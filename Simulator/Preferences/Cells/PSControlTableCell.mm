#include "PSTableCell+Further.h"
#include "Preferences/Specifiers/SpecifierState.h"
#include "Runtime/Objc/LazyState.hpp"
#include "Runtime/Objc/Ownership.h"
#include "UIKit/UIKit+Further.h"

#include <Preferences/PSTableCell.h>

namespace {

struct ControlCellState {
    UIControl *control = nil; // retained
};

ControlCellState &state(PSControlTableCell *cell) {
    return sim::lazyState<ControlCellState>(cell->_controlTableCellState);
}

} // namespace

@implementation PSControlTableCell

- (instancetype)initWithStyle:(UITableViewCellStyle)style
              reuseIdentifier:(NSString *)identifier
                    specifier:(PSSpecifier *)specifier {
    if (!(self = [super initWithStyle:style reuseIdentifier:identifier specifier:specifier])) return nil;
    UIControl *control = [self newControl];
    [self setControl:control];
    [control release];
    return self;
}

- (void)dealloc {
    auto &mine = state(self);
    [mine.control removeTarget:self action:nullptr forControlEvents:UIControlEventValueChanged];
    [mine.control release];
    delete &mine;
    [super dealloc];
}

- (UIControl *)newControl {
    return nil;
}

- (UIControl *)control {
    return state(self).control;
}
- (void)setControl:(UIControl *)control {
    UIControl *&held = state(self).control;
    if (control == held) return;
    [held removeTarget:self action:@selector(controlChanged:) forControlEvents:UIControlEventValueChanged];
    sim::retainInto(held, control);
    [control addTarget:self action:@selector(controlChanged:) forControlEvents:UIControlEventValueChanged];
    [self setAccessoryView:control];
}

- (id)controlValue {
    return nil;
}

- (void)controlChanged:(UIControl *)control {
    [[self retain] autorelease];
    [[self specifier] performSetterWithValue:[self controlValue]];
}

- (void)setCellEnabled:(BOOL)enabled {
    [super setCellEnabled:enabled];
    [[self control] setEnabled:enabled];
}

@end

@implementation PSSwitchTableCell

- (UIControl *)newControl {
    return [[UISwitch alloc] initWithFrame:CGRectZero];
}

- (id)controlValue {
    return [NSNumber numberWithBool:[static_cast<UISwitch *>([self control]) isOn]];
}

- (void)setValue:(id)value {
    [super setValue:value];
    bool on = [value respondsToSelector:@selector(boolValue)] && [value boolValue];
    [static_cast<UISwitch *>([self control]) setOn:on animated:NO];
}

@end

// Fills its row; the specifier's name is not shown.
@implementation PSSegmentTableCell

- (void)refreshCellContentsWithSpecifier:(PSSpecifier *)specifier {
    NSMutableArray *titles = [NSMutableArray array];
    for (id value in [specifier values]) {
        NSString *title = [specifier titleForValue:value];
        [titles addObject:title ? title : [value description]];
    }
    UISegmentedControl *control = [[UISegmentedControl alloc] initWithItems:titles];
    [self setControl:control];
    [control release];
    [super refreshCellContentsWithSpecifier:specifier];
    [[self textLabel] setText:nil];
    [[self detailTextLabel] setText:nil];
}

- (UISegmentedControl *)segments {
    return static_cast<UISegmentedControl *>([self control]);
}

- (id)controlValue {
    NSInteger index = [[self segments] selectedSegmentIndex];
    NSArray *values = [[self specifier] values];
    bool exists = index >= 0 && index < static_cast<NSInteger>([values count]);
    return exists ? [values objectAtIndex:static_cast<NSUInteger>(index)] : nil;
}

- (void)setValue:(id)value {
    [super setValue:value];
    [[self detailTextLabel] setText:nil];
    NSUInteger index = value ? [[[self specifier] values] indexOfObject:value] : NSNotFound;
    [[self segments] setSelectedSegmentIndex:index == NSNotFound
                                                 ? static_cast<NSInteger>(UISegmentedControlNoSegment)
                                                 : static_cast<NSInteger>(index)];
}

- (void)layoutSubviews {
    [super layoutSubviews];
    constexpr CGFloat kMargin = 15;
    CGSize size = [self bounds].size;
    CGFloat height = [[self control] sizeThatFits:size].height;
    [[self control]
        setFrame:CGRectMake(kMargin, (size.height - height) / 2, size.width - 2 * kMargin, height)];
}

@end
