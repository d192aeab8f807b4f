#include "Saboteur.h"

#include <Substrate/CydiaSubstrate.h>

namespace saboteur {

namespace {

UIView *panel() { return [overlay() viewWithTag:3]; }
UIView *content() { return [panel() viewWithTag:1]; }

UIScrollView *strip() {
    for (UIView *view in content().subviews)
        if ([view isKindOfClass:[UIScrollView class]]) return (UIScrollView *)view;
    return nil;
}
UIView *item(NSUInteger index) { return [strip().subviews objectAtIndex:index]; }

UIView *part(UIView *parent, NSInteger tag) {
    for (UIView *view in parent.subviews)
        if (view.tag == tag) return view;
    return nil;
}
UILabel *label(UIView *parent) {
    for (UIView *view in parent.subviews)
        if ([view isKindOfClass:[UILabel class]]) return (UILabel *)view;
    return nil;
}
void move(UIView *view, CGFloat dx, CGFloat dy) {
    CGRect frame = view.frame;
    view.frame = CGRectMake(frame.origin.x + dx, frame.origin.y + dy, frame.size.width, frame.size.height);
}

// What is done to a panel in the moment in which it is built.
void (*spoil)();
void (*prepare)(id, SEL, id);
void prepareAndSpoil(id self, SEL selector, id view) {
    prepare(self, selector, view);
    spoil();
}
void spoilOpenings(void (*way)()) {
    spoil = way;
    MSHookMessageEx([SpringBoard class], sel_registerName("prepareUI:"), (IMP)prepareAndSpoil,
                    (IMP *)&prepare);
}
void hide() { [item(0) removeFromSuperview]; }
void exchange() {
    NSString *first = [[item(0).layer.name copy] autorelease];
    item(0).layer.name = item(1).layer.name;
    item(1).layer.name = first;
}
void rename() { label(item(0)).text = @"Somebody"; }
void renumber() { part(item(0), 99).layer.name = @"77"; }
void hideItem() { spoilOpenings(hide); }
void exchangeItems() { spoilOpenings(exchange); }
void renameItem() { spoilOpenings(rename); }
void renumberItem() { spoilOpenings(renumber); }

void shiftItem() { move(item(1), 7, 0); }
void lowerItem() { move(item(1), 0, 7); }
void widenPanel() { panel().frame = CGRectInset(panel().frame, -4, 0); }
void heightenPanel() {
    CGRect frame = panel().frame;
    frame.size.height += 9;
    panel().frame = frame;
}
void loseDot() { [[[part(content(), 56) subviews] lastObject] removeFromSuperview]; }

void paleName() { label(item(0)).textColor = [UIColor grayColor]; }
void smallName() { label(item(0)).font = [UIFont systemFontOfSize:9]; }
void squarePanel() { panel().layer.cornerRadius = 0; }
void squareBadge() { part(item(0), 99).layer.cornerRadius = 0; }
void paleLogo() { part(overlay(), 1).tintColor = [UIColor grayColor]; }

// Methods that do nothing any more.
void doNothing(id, SEL, id) {}
void silence(const char *selector) {
    IMP previous;
    MSHookMessageEx([SpringBoard class], sel_registerName(selector), (IMP)doNothing, &previous);
}
void deafItems() { silence("tapPressEvent:"); }
void deafPresses() { silence("longPressEvent:"); }
void keepItems() { silence("closeIcon:"); }
void stayOpen() { silence("dismisPendixUI"); }
void deafKeys() { silence("tapNumber:"); }
void deafChoice() { silence("usePasscode"); }
void deafDelete() { silence("dismisPendixUIorDelete:"); }

UIView *face(NSInteger tag) { return part(content(), tag); }
void sayOther() { label(face(46)).text = @"(null)"; }
void shiftKey() { move(part(face(46), 50), 3, 0); }
void wrongLetters() { ((UILabel *)[part(face(46), 50).subviews objectAtIndex:1]).text = @"XYZ"; }
void lowPanel() {
    CGRect frame = panel().frame;
    frame.size.height -= 20;
    panel().frame = frame;
}
void paleButton() { part(face(46), -2).backgroundColor = nil; }

void glow() {
    UIView *view = [springBoard() performSelector:sel_registerName("pendix")];
    view.layer.shadowOpacity = 1;
}
void dimGlow() {
    UIView *view = [springBoard() performSelector:sel_registerName("pendix")];
    view.layer.shadowRadius = 2;
}
void showBadges(UIView *view) {
    if ([view isKindOfClass:objc_getClass("SBIconBadgeView")]) view.hidden = NO;
    if (view.tag == 1953) [view removeFromSuperview];
    for (UIView *child in [[view.subviews copy] autorelease]) showBadges(child);
}
void showAllBadges() {
    for (UIWindow *window in [UIApplication sharedApplication].windows) showBadges(window);
}

} // namespace

std::span<const Act> sightActs() {
    static const Act list[] = {
        {"hide item", hideItem},         {"exchange items", exchangeItems}, {"rename item", renameItem},
        {"renumber item", renumberItem}, {"shift item", shiftItem},         {"lower item", lowerItem},
        {"widen panel", widenPanel},     {"heighten panel", heightenPanel}, {"lose dot", loseDot},
        {"pale name", paleName},         {"small name", smallName},         {"square panel", squarePanel},
        {"square badge", squareBadge},   {"pale logo", paleLogo},           {"deaf items", deafItems},
        {"deaf presses", deafPresses},   {"keep items", keepItems},         {"stay open", stayOpen},
        {"deaf keys", deafKeys},         {"deaf choice", deafChoice},       {"deaf delete", deafDelete},
        {"say other", sayOther},         {"shift key", shiftKey},           {"wrong letters", wrongLetters},
        {"low panel", lowPanel},         {"pale button", paleButton},       {"glow", glow},
        {"dim glow", dimGlow},           {"show badges", showAllBadges}};
    return list;
}

} // namespace saboteur
