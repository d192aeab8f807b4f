#include "Tweak/Core/State.h"

namespace pendix {

SpringBoard *Spring = nil;
UIWindow *window = nil;
LSStatusBarItem *statusbaritem = nil;
NSMutableArray *datas = nil;

BOOL lastEnable = NO;
BOOL lastHide = NO;
BOOL lastTempor = NO;
BOOL lastSwitcher = NO;

UIWindow *window1 = nil;
float badgeHeight = 0;
BOOL needToPulse = NO;
float co = 0;
float per = 0;
float lastx = 0;
BOOL lastReachability = NO;

BOOL isShow = NO;
NSInteger last = UIInterfaceOrientationPortrait;
BOOL isEditing = NO;

BOOL locked = NO;

void createBadgeList() { datas = [NSMutableArray new]; }

} // namespace pendix
