// What the platform has beyond <UIKit/UITableView.h>: used by the simulator and its tests only.
#pragma once

#include <UIKit/UITableView.h>

@interface UITableView (Further)
@property (nonatomic) CGFloat rowHeight; // 44
@property (nonatomic, retain) UIColor *separatorColor;
@property (nonatomic, retain) UIView *tableHeaderView;
@property (nonatomic, retain) UIView *tableFooterView;
@property (nonatomic) BOOL allowsSelection;
- (void)reloadData;
- (NSInteger)numberOfSections;
- (NSInteger)numberOfRowsInSection:(NSInteger)section;
// nil for a row that is off screen.
- (UITableViewCell *)cellForRowAtIndexPath:(NSIndexPath *)indexPath;
- (NSIndexPath *)indexPathForCell:(UITableViewCell *)cell;
- (NSIndexPath *)indexPathForRowAtPoint:(CGPoint)point;
- (NSArray *)visibleCells;
- (NSArray *)indexPathsForVisibleRows;
- (NSIndexPath *)indexPathForSelectedRow;
- (CGRect)rectForSection:(NSInteger)section;
- (CGRect)rectForHeaderInSection:(NSInteger)section;
- (CGRect)rectForFooterInSection:(NSInteger)section;
- (CGRect)rectForRowAtIndexPath:(NSIndexPath *)indexPath;
- (void)reloadRowsAtIndexPaths:(NSArray *)indexPaths withRowAnimation:(UITableViewRowAnimation)animation;
- (void)reloadSections:(NSIndexSet *)sections withRowAnimation:(UITableViewRowAnimation)animation;
- (void)selectRowAtIndexPath:(NSIndexPath *)indexPath
                    animated:(BOOL)animated
              scrollPosition:(UITableViewScrollPosition)position;
- (void)deselectRowAtIndexPath:(NSIndexPath *)indexPath animated:(BOOL)animated;
- (void)scrollToRowAtIndexPath:(NSIndexPath *)indexPath
              atScrollPosition:(UITableViewScrollPosition)position
                      animated:(BOOL)animated;
// A cell that went off screen; nil when there is none.
- (UITableViewCell *)dequeueReusableCellWithIdentifier:(NSString *)identifier;
@end
