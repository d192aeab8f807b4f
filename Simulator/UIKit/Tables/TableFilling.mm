// What a table shows of its rows, headers and footers: only what is on screen has a view.
#include "TableState.h"

#include "Runtime/Process/Device.hpp"
#include "UIKit/Views/UIView+Further.h"
#include "UIKit/Views/ViewState.h"
#include "UITableView+Further.h"
#include "UITableViewCell+Further.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace sim {

namespace {

constexpr CGFloat kOwnHeight = -1;
// Around groups without texts.
constexpr CGFloat kFirstGap = 35, kGap = 17.5;
constexpr CGFloat kNarrowest = 400, kPadInset = 55;

id<UITableViewDelegate> delegateOf(UITableView *table) { return [table delegate]; }

CGFloat widthOf(UITableView *table) { return [table bounds].size.width - 2 * sectionInset(table); }

NSString *title(UITableView *table, size_t section, bool footer) {
    id<UITableViewDataSource> source = state(table).dataSource;
    auto index = static_cast<NSInteger>(section);
    if (footer)
        return [source respondsToSelector:@selector(tableView:titleForFooterInSection:)]
                   ? [source tableView:table titleForFooterInSection:index]
                   : nil;
    return [source respondsToSelector:@selector(tableView:titleForHeaderInSection:)]
               ? [source tableView:table titleForHeaderInSection:index]
               : nil;
}

CGFloat ownHeight(UITableView *table, size_t section, bool footer) {
    NSString *text = title(table, section, footer);
    bool grouped = state(table).style == UITableViewStyleGrouped;
    if ([text length] == 0) return !grouped ? 0 : !footer && section == 0 ? kFirstGap : kGap;
    return footer ? footerTextHeight(text, widthOf(table))
                  : headerTextHeight(text, widthOf(table), section == 0);
}

CGFloat edgeHeight(UITableView *table, size_t section, bool footer) {
    id<UITableViewDelegate> delegate = delegateOf(table);
    auto index = static_cast<NSInteger>(section);
    CGFloat asked = kOwnHeight;
    if (footer && [delegate respondsToSelector:@selector(tableView:heightForFooterInSection:)])
        asked = [delegate tableView:table heightForFooterInSection:index];
    if (!footer && [delegate respondsToSelector:@selector(tableView:heightForHeaderInSection:)])
        asked = [delegate tableView:table heightForHeaderInSection:index];
    return asked == kOwnHeight ? ownHeight(table, section, footer) : asked;
}

CGFloat rowHeight(UITableView *table, TableRow row) {
    id<UITableViewDelegate> delegate = delegateOf(table);
    if (![delegate respondsToSelector:@selector(tableView:heightForRowAtIndexPath:)])
        return state(table).rowHeight;
    CGFloat height = [delegate tableView:table heightForRowAtIndexPath:path(row)];
    return height < 0 ? state(table).rowHeight : height;
}

UIView *makeEdge(UITableView *table, size_t section, bool footer) {
    id<UITableViewDelegate> delegate = delegateOf(table);
    auto index = static_cast<NSInteger>(section);
    UIView *view = nil;
    if (footer && [delegate respondsToSelector:@selector(tableView:viewForFooterInSection:)])
        view = [delegate tableView:table viewForFooterInSection:index];
    if (!footer && [delegate respondsToSelector:@selector(tableView:viewForHeaderInSection:)])
        view = [delegate tableView:table viewForHeaderInSection:index];
    if (view) return view;
    NSString *text = title(table, section, footer);
    if ([text length] == 0) return nil;
    return [[[UITableViewHeaderFooterView alloc] initWithText:text footer:footer] autorelease];
}

CGRect rectOf(UITableView *table, Span span) {
    CGFloat inset = sectionInset(table);
    return CGRectMake(inset, span.top, [table bounds].size.width - 2 * inset, span.height);
}

void fillEdges(UITableView *table, std::map<size_t, UIView *> &views, bool footer) {
    CGRect bounds = [table bounds];
    const auto &layout = state(table).layout;
    for (size_t section = 0; section < layout.sections(); ++section) {
        Span span = footer ? layout.footer(section) : layout.header(section);
        bool visible = span.height > 0 && span.meets(bounds.origin.y, CGRectGetMaxY(bounds));
        auto found = views.find(section);
        if (!visible) {
            if (found == views.end()) continue;
            [found->second removeFromSuperview];
            [found->second release];
            views.erase(found);
            continue;
        }
        if (found == views.end()) {
            UIView *view = makeEdge(table, section, footer);
            if (!view) continue;
            found = views.emplace(section, [view retain]).first;
            [table insertSubview:view atIndex:0];
        }
        [found->second setFrame:rectOf(table, span)];
    }
}

void recycle(UITableView *table, UITableViewCell *cell) {
    [cell removeFromSuperview];
    if (![cell reuseIdentifier]) return [cell release];
    state(table).reusable.emplace([[cell reuseIdentifier] UTF8String], cell);
}

UITableViewCell *makeCell(UITableView *table, TableRow row) {
    auto &mine = state(table);
    UITableViewCell *cell = [mine.dataSource tableView:table cellForRowAtIndexPath:path(row)];
    if (!cell)
        [NSException
             raise:NSInternalInconsistencyException
            format:@"UITableView dataSource must return a cell from tableView:cellForRowAtIndexPath:"];
    setSeparatorColor(cell, [table separatorColor]);
    [cell setSelected:mine.selected == row];
    if ([delegateOf(table) respondsToSelector:@selector(tableView:willDisplayCell:forRowAtIndexPath:)])
        [delegateOf(table) tableView:table willDisplayCell:cell forRowAtIndexPath:path(row)];
    return [cell retain];
}

RowPlace placeOf(UITableView *table, TableRow row) {
    const auto &mine = state(table);
    return {.first = row.row == 0,
            .last = row.row + 1 == mine.layout.rows(row.section),
            .grouped = mine.style == UITableViewStyleGrouped,
            .rounded = sectionInset(table) > 0};
}

void fillRows(UITableView *table) {
    auto &mine = state(table);
    CGRect bounds = [table bounds];
    auto visible = mine.layout.rowsWithin(bounds.origin.y, CGRectGetMaxY(bounds));
    for (auto cell = mine.cells.begin(); cell != mine.cells.end();) {
        if (std::count(visible.begin(), visible.end(), cell->first)) {
            ++cell;
            continue;
        }
        recycle(table, cell->second);
        cell = mine.cells.erase(cell);
    }
    for (TableRow row : visible) {
        auto found = mine.cells.find(row);
        bool fresh = found == mine.cells.end();
        if (fresh) found = mine.cells.emplace(row, makeCell(table, row)).first;
        UITableViewCell *cell = found->second;
        setPlace(cell, placeOf(table, row));
        CGRect frame = rectOf(table, mine.layout.row(row));
        if (fresh) {
            [UIView performWithoutAnimation:^{
                [cell setFrame:frame];
                [table insertSubview:cell atIndex:0];
                [cell layoutIfNeeded];
            }];
        } else {
            [cell setFrame:frame];
        }
    }
}

template <typename Key, typename View>
void dropAll(std::map<Key, View *> &views) {
    for (auto &[key, view] : views) {
        [view removeFromSuperview];
        [view release];
    }
    views.clear();
}

} // namespace

CGFloat sectionInset(UITableView *table) {
    bool wide = device().pad && [table bounds].size.width >= kNarrowest;
    return wide && state(table).style == UITableViewStyleGrouped ? kPadInset : 0;
}

void measureTable(UITableView *table) {
    auto &mine = state(table);
    id<UITableViewDataSource> source = mine.dataSource;
    NSInteger count = 0;
    if (source)
        count = [source respondsToSelector:@selector(numberOfSectionsInTableView:)]
                    ? [source numberOfSectionsInTableView:table]
                    : 1;
    std::vector<TableSection> sections(static_cast<size_t>(std::max<NSInteger>(count, 0)));
    for (size_t i = 0; i < sections.size(); ++i) {
        auto rows = [source tableView:table numberOfRowsInSection:static_cast<NSInteger>(i)];
        for (NSInteger row = 0; row < rows; ++row)
            sections[i].rows.push_back(rowHeight(table, {i, static_cast<size_t>(row)}));
        sections[i].header = edgeHeight(table, i, false);
        sections[i].footer = edgeHeight(table, i, true);
    }
    mine.loaded = true;
    mine.layout = TableLayout(std::move(sections), mine.header ? [mine.header bounds].size.height : 0);
    CGFloat below = mine.footer ? [mine.footer bounds].size.height : 0;
    [table setContentSize:CGSizeMake([table bounds].size.width, mine.layout.bottom() + below)];
    if (mine.selected && !mine.layout.has(*mine.selected)) mine.selected.reset();
    mine.touched.reset();
}

void fillTable(UITableView *table) {
    auto &mine = state(table);
    CGFloat width = [table bounds].size.width;
    [mine.header setFrame:CGRectMake(0, 0, width, [mine.header bounds].size.height)];
    [mine.footer setFrame:CGRectMake(0, mine.layout.bottom(), width, [mine.footer bounds].size.height)];
    fillRows(table);
    fillEdges(table, mine.headers, false);
    fillEdges(table, mine.footers, true);
}

void emptyTable(UITableView *table) {
    auto &mine = state(table);
    for (auto &[row, cell] : mine.cells) recycle(table, cell);
    mine.cells.clear();
    dropAll(mine.headers);
    dropAll(mine.footers);
}

void dropSection(UITableView *table, size_t section) {
    auto &mine = state(table);
    for (auto *views : {&mine.headers, &mine.footers})
        if (auto found = views->find(section); found != views->end()) {
            [found->second removeFromSuperview];
            [found->second release];
            views->erase(found);
        }
    for (auto cell = mine.cells.begin(); cell != mine.cells.end();) {
        if (cell->first.section != section) {
            ++cell;
            continue;
        }
        recycle(table, cell->second);
        cell = mine.cells.erase(cell);
    }
}

} // namespace sim
