#include "TableState.h"

#include "Runtime/Objc/LazyState.hpp"
#include "Runtime/Objc/Ownership.h"
#include "UIKit/UIKit+Further.h"
#include "UIKit/Views/ViewState.h"
#include "UITableView+Further.h"
#include "UITableViewCell+Further.h"

#include <UIKit/UITouch.h>

#include <algorithm>

namespace sim {

TableState &state(UITableView *table) { return lazyState<TableState>(table->_tableState); }

} // namespace sim

using sim::state;
using sim::TableRow;

namespace {

constexpr double kReloadSeconds = 0.3;

CGRect rectOf(UITableView *table, sim::Span span) {
    return CGRectMake(0, span.top, [table bounds].size.width, span.height);
}

void setTouched(UITableView *table, std::optional<TableRow> row, bool animated) {
    auto &mine = state(table);
    if (mine.touched == row) return;
    auto highlight = [&](bool on) {
        auto found = mine.touched ? mine.cells.find(*mine.touched) : mine.cells.end();
        if (found != mine.cells.end()) [found->second setHighlighted:on animated:animated];
    };
    highlight(false);
    mine.touched = row;
    highlight(true);
}

bool mayHighlight(UITableView *table, TableRow row) {
    id<UITableViewDelegate> delegate = [table delegate];
    return ![delegate respondsToSelector:@selector(tableView:shouldHighlightRowAtIndexPath:)] ||
           [delegate tableView:table shouldHighlightRowAtIndexPath:sim::path(row)];
}

void select(UITableView *table, TableRow row) {
    id<UITableViewDelegate> delegate = [table delegate];
    NSIndexPath *path = sim::path(row);
    if ([delegate respondsToSelector:@selector(tableView:willSelectRowAtIndexPath:)])
        path = [delegate tableView:table willSelectRowAtIndexPath:path];
    if (!path) return;
    [table selectRowAtIndexPath:path animated:NO scrollPosition:UITableViewScrollPositionNone];
    if ([delegate respondsToSelector:@selector(tableView:didSelectRowAtIndexPath:)])
        [delegate tableView:table didSelectRowAtIndexPath:path];
}

// What a section shows is exchanged; the rest of the table moves to where it belongs by now.
void reload(UITableView *table, NSIndexSet *sections, bool animated) {
    for (NSUInteger i = [sections firstIndex]; i != NSNotFound; i = [sections indexGreaterThanIndex:i])
        sim::dropSection(table, i);
    sim::measureTable(table);
    if (!animated || ![table window]) return sim::fillTable(table);
    [UIView animateWithDuration:kReloadSeconds animations:^{ sim::fillTable(table); }];
    std::vector<UIView *> fresh;
    for (const auto &[row, cell] : state(table).cells)
        if ([sections containsIndex:row.section]) fresh.push_back(cell);
    for (auto *views : {&state(table).headers, &state(table).footers})
        for (const auto &[section, view] : *views)
            if ([sections containsIndex:section]) fresh.push_back(view);
    for (UIView *view : fresh) {
        [view setAlpha:0];
        [UIView animateWithDuration:kReloadSeconds animations:^{ [view setAlpha:1]; }];
    }
}

// Not retained: a table takes itself off.
std::vector<UITableView *> &tables() {
    static std::vector<UITableView *> list;
    return list;
}

void dropReusable(UITableView *table) {
    for (auto &[identifier, cell] : state(table).reusable) [cell release];
    state(table).reusable.clear();
}

} // namespace

namespace sim {

void remakeTables() {
    for (UITableView *table : tables()) {
        if (!::state(table).loaded) continue;
        emptyTable(table);
        dropReusable(table);
        [table reloadData];
    }
}

} // namespace sim

@implementation UITableView

- (instancetype)initWithFrame:(CGRect)frame {
    return [self initWithFrame:frame style:UITableViewStylePlain];
}

- (instancetype)initWithFrame:(CGRect)frame style:(UITableViewStyle)style {
    if (!(self = [super initWithFrame:frame])) return nil;
    auto &mine = state(self);
    tables().push_back(self);
    mine.style = style;
    mine.separator = [[UIColor colorWithRed:0.783 green:0.78 blue:0.8 alpha:1] retain];
    [self setAlwaysBounceVertical:YES];
    [self setBackgroundColor:style == UITableViewStyleGrouped ? [UIColor colorWithRed:239 / 255.0
                                                                                green:239 / 255.0
                                                                                 blue:244 / 255.0
                                                                                alpha:1]
                                                              : [UIColor whiteColor]];
    return self;
}

- (void)dealloc {
    auto *mine = &state(self);
    sim::emptyTable(self);
    dropReusable(self);
    std::erase(tables(), self);
    [mine->separator release];
    [mine->header release];
    [mine->footer release];
    [super dealloc];
    delete mine;
}

- (UITableViewStyle)style {
    return state(self).style;
}

- (id<UITableViewDataSource>)dataSource {
    return state(self).dataSource;
}
- (void)setDataSource:(id<UITableViewDataSource>)dataSource {
    state(self).dataSource = dataSource;
    if (!dataSource) return;
    state(self).loaded = false;
    [self setNeedsLayout];
}

- (id<UITableViewDelegate>)delegate {
    return static_cast<id<UITableViewDelegate>>([super delegate]);
}
- (void)setDelegate:(id<UITableViewDelegate>)delegate {
    [super setDelegate:delegate];
}

- (CGFloat)rowHeight {
    return state(self).rowHeight;
}
- (void)setRowHeight:(CGFloat)height {
    state(self).rowHeight = height;
}

- (UIColor *)separatorColor {
    return state(self).separator;
}
- (void)setSeparatorColor:(UIColor *)color {
    sim::retainInto(state(self).separator, color);
    for (auto &[row, cell] : state(self).cells) sim::setSeparatorColor(cell, color);
}

- (void)replaceView:(UIView **)slot with:(UIView *)view {
    if (*slot == view) return;
    [*slot removeFromSuperview];
    [view retain];
    [*slot release];
    *slot = view;
    if (view) [self addSubview:view];
    if (state(self).loaded) [self reloadData];
}
- (UIView *)tableHeaderView {
    return state(self).header;
}
- (void)setTableHeaderView:(UIView *)view {
    [self replaceView:&state(self).header with:view];
}
- (UIView *)tableFooterView {
    return state(self).footer;
}
- (void)setTableFooterView:(UIView *)view {
    [self replaceView:&state(self).footer with:view];
}

- (BOOL)allowsSelection {
    return state(self).allowsSelection;
}
- (void)setAllowsSelection:(BOOL)allows {
    state(self).allowsSelection = allows;
}

- (void)reloadData {
    state(self).selected.reset();
    sim::emptyTable(self);
    sim::measureTable(self);
    [self setNeedsLayout];
}

- (void)loadIfNeeded {
    if (!state(self).loaded) sim::measureTable(self);
}

- (void)layoutSubviews {
    [super layoutSubviews];
    [self loadIfNeeded];
    sim::fillTable(self);
}

// Texts break anew in another width.
- (void)setFrame:(CGRect)frame {
    CGFloat width = [self bounds].size.width;
    [super setFrame:frame];
    if (frame.size.width == width || !state(self).loaded) return;
    sim::measureTable(self);
    [self setNeedsLayout];
}

- (NSInteger)numberOfSections {
    [self loadIfNeeded];
    return static_cast<NSInteger>(state(self).layout.sections());
}
- (NSInteger)numberOfRowsInSection:(NSInteger)section {
    [self loadIfNeeded];
    return static_cast<NSInteger>(state(self).layout.rows(static_cast<size_t>(section)));
}

- (UITableViewCell *)cellForRowAtIndexPath:(NSIndexPath *)indexPath {
    auto &cells = state(self).cells;
    auto found = indexPath ? cells.find(sim::rowOf(indexPath)) : cells.end();
    return found == cells.end() ? nil : found->second;
}

- (NSIndexPath *)indexPathForCell:(UITableViewCell *)cell {
    for (const auto &[row, shown] : state(self).cells)
        if (shown == cell) return sim::path(row);
    return nil;
}

- (NSIndexPath *)indexPathForRowAtPoint:(CGPoint)point {
    auto row = state(self).layout.rowAt(point.y);
    return row ? sim::path(*row) : nil;
}

- (NSArray *)visibleCells {
    NSMutableArray *result = [NSMutableArray array];
    for (const auto &[row, cell] : state(self).cells) [result addObject:cell];
    return result;
}

- (NSArray *)indexPathsForVisibleRows {
    NSMutableArray *result = [NSMutableArray array];
    for (const auto &[row, cell] : state(self).cells) [result addObject:sim::path(row)];
    return result;
}

- (NSIndexPath *)indexPathForSelectedRow {
    return state(self).selected ? sim::path(*state(self).selected) : nil;
}

- (CGRect)rectForSection:(NSInteger)section {
    [self loadIfNeeded];
    return rectOf(self, state(self).layout.section(static_cast<size_t>(section)));
}
- (CGRect)rectForHeaderInSection:(NSInteger)section {
    [self loadIfNeeded];
    return rectOf(self, state(self).layout.header(static_cast<size_t>(section)));
}
- (CGRect)rectForFooterInSection:(NSInteger)section {
    [self loadIfNeeded];
    return rectOf(self, state(self).layout.footer(static_cast<size_t>(section)));
}
- (CGRect)rectForRowAtIndexPath:(NSIndexPath *)indexPath {
    [self loadIfNeeded];
    TableRow row = sim::rowOf(indexPath);
    return state(self).layout.has(row) ? rectOf(self, state(self).layout.row(row)) : CGRectZero;
}

- (void)reloadRowsAtIndexPaths:(NSArray *)indexPaths withRowAnimation:(UITableViewRowAnimation)animation {
    NSMutableIndexSet *sections = [NSMutableIndexSet indexSet];
    for (NSIndexPath *each in indexPaths) [sections addIndex:static_cast<NSUInteger>([each section])];
    reload(self, sections, animation != UITableViewRowAnimationNone);
}

- (void)reloadSections:(NSIndexSet *)sections withRowAnimation:(UITableViewRowAnimation)animation {
    reload(self, sections, animation != UITableViewRowAnimationNone);
}

- (void)selectRowAtIndexPath:(NSIndexPath *)indexPath
                    animated:(BOOL)animated
              scrollPosition:(UITableViewScrollPosition)position {
    [self deselectRowAtIndexPath:[self indexPathForSelectedRow] animated:animated];
    if (!indexPath) return;
    state(self).selected = sim::rowOf(indexPath);
    [[self cellForRowAtIndexPath:indexPath] setSelected:YES animated:animated];
    if (position != UITableViewScrollPositionNone)
        [self scrollToRowAtIndexPath:indexPath atScrollPosition:position animated:animated];
}

- (void)deselectRowAtIndexPath:(NSIndexPath *)indexPath animated:(BOOL)animated {
    if (!indexPath || state(self).selected != sim::rowOf(indexPath)) return;
    state(self).selected.reset();
    [[self cellForRowAtIndexPath:indexPath] setSelected:NO animated:animated];
}

- (void)scrollToRowAtIndexPath:(NSIndexPath *)indexPath
              atScrollPosition:(UITableViewScrollPosition)position
                      animated:(BOOL)animated {
    CGRect row = [self rectForRowAtIndexPath:indexPath];
    UIEdgeInsets inset = [self contentInset];
    CGSize size = [self bounds].size;
    CGFloat top = row.origin.y - inset.top, bottom = CGRectGetMaxY(row) - size.height + inset.bottom;
    CGFloat now = [self contentOffset].y;
    CGFloat wanted = position == UITableViewScrollPositionTop      ? top
                     : position == UITableViewScrollPositionBottom ? bottom
                     : position == UITableViewScrollPositionMiddle
                         ? (top + bottom) / 2
                         : std::clamp(now, std::min(bottom, top), top);
    CGFloat most = std::max(-inset.top, [self contentSize].height + inset.bottom - size.height);
    [self setContentOffset:{[self contentOffset].x, std::clamp(wanted, -inset.top, most)} animated:animated];
}

- (UITableViewCell *)dequeueReusableCellWithIdentifier:(NSString *)identifier {
    auto &reusable = state(self).reusable;
    auto found = identifier ? reusable.find([identifier UTF8String]) : reusable.end();
    if (found == reusable.end()) return nil;
    UITableViewCell *cell = [found->second autorelease];
    reusable.erase(found);
    [cell prepareForReuse];
    return cell;
}

// A cell that takes no touches lets them through to the table, for which they mean nothing.
- (void)touchesBegan:(NSSet *)touches withEvent:(UIEvent *)event {
    UITouch *touch = [touches anyObject];
    auto row = state(self).layout.rowAt([touch locationInView:self].y);
    if (!row || !state(self).allowsSelection) return;
    UITableViewCell *cell = [self cellForRowAtIndexPath:sim::path(*row)];
    if (!cell || ![[touch view] isDescendantOfView:cell] || !mayHighlight(self, *row)) return;
    setTouched(self, row, false);
}

- (void)touchesMoved:(NSSet *)touches withEvent:(UIEvent *)event {
    auto row = state(self).layout.rowAt([[touches anyObject] locationInView:self].y);
    if (row != state(self).touched) setTouched(self, std::nullopt, true);
}

- (void)touchesEnded:(NSSet *)touches withEvent:(UIEvent *)event {
    auto row = state(self).touched;
    setTouched(self, std::nullopt, false);
    if (row) select(self, *row);
}

- (void)touchesCancelled:(NSSet *)touches withEvent:(UIEvent *)event {
    setTouched(self, std::nullopt, true);
}

@end

@implementation NSIndexPath (UITableView)

+ (NSIndexPath *)indexPathForRow:(NSInteger)row inSection:(NSInteger)section {
    NSUInteger indexes[] = {static_cast<NSUInteger>(section), static_cast<NSUInteger>(row)};
    return [NSIndexPath indexPathWithIndexes:indexes length:2];
}
- (NSInteger)section {
    return static_cast<NSInteger>([self indexAtPosition:0]);
}
- (NSInteger)row {
    return static_cast<NSInteger>([self indexAtPosition:1]);
}

@end
