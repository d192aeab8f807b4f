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
BOOL needPasscode = NO;
BOOL requireFinger = NO;
float gheight = 0;
float lastGheight = 0;
float lastHeight = 0;
float lastHeight1 = 0;
NSInteger pages = 0;
NSInteger last = UIInterfaceOrientationPortrait;

float ss = 0, mm = 0, hh = 0;
float lastRotation = 0, lastRotation1 = 0, lastRotation2 = 0;

BOOL isEditing = NO;
BOOL isSliding = NO;
BOOL sliding = NO;
CGPoint startPoint = {0, 0};
CGPoint endPoint = {0, 0};
float firstLocation = 0;
BOOL okay = NO;
NSString *openThisApp = @"";

BOOL locked = NO;

void createBadgeList() { datas = [NSMutableArray new]; }

} // namespace pendix
