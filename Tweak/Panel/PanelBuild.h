// One opening of the panel: what its building steps share. It lives as long as prepareUI: runs.
#pragma once

#include "Tweak/Core/Geometry/StripLayout.hpp"
#include "Tweak/Core/PanelAnchor.h"
#include "Tweak/Core/Scheme.h"
#include "Tweak/Panel/NameType.h"
#include "Tweak/Panel/NewUIScrollView.h"

#include <SpringBoard/SBApplication.h>
#include <SpringBoard/SBIcon.h>
#include <SpringBoard/SpringBoard.h>
#include <UIKit/UIKit.h>

#include <vector>

namespace pendix {

// What all badges of one count show.
struct BadgeText {
    NSInteger value;
    NSString *text;
    UIImage *image; // nil until it is drawn
};

struct PanelBuild {
    SpringBoard *springBoard;
    UIStatusBarItemView *item; // out of which the panel grows

    // Settings and surroundings, read once.
    Scheme scheme;
    BOOL running; // lists running applications, not badged ones
    BOOL paging;
    BOOL cards;
    BOOL closeMarks;     // closing by marks instead of swipes
    UIImage *closeImage; // a template; nil without the file
    NameType names;
    CGSize screen; // portrait
    StripInput layout;
    ItemPlace itemPlace; // where the item is, in the overlay
    Placement placement; // with the strip's height

    // Views, retained by where they stand.
    UIView *bubble, *panel, *content, *logo;
    NewUIScrollView *strip;
    UIView *dots; // nil without paging or applications

    int count;      // applications on the strip
    CGFloat height; // the panel's, when it is open

    // What badges share, each made when the first one needs it.
    UIFont *badgeFont;
    UIImage *badgeGround; // stretchable
    std::vector<BadgeText> badgeTexts;
};

// The steps, in their order; each builds one thing into `build`.
void addBubbleAndPanel(PanelBuild &build);
void addLogo(PanelBuild &build);
void addContentAndStrip(PanelBuild &build);
void addPageDots(PanelBuild &build);
void fillEmptyStrip(PanelBuild &build);
void fitCards(PanelBuild &build);
void assemble(PanelBuild &build);
void openPanel(PanelBuild &build);

// What one application shows on the strip; retained by nobody.
struct PanelApplication {
    NSString *identifier;
    SBApplication *application;
    SBIcon *icon;
    SBIconView *iconView;
};

// Those that the panel lists, in the order of the strip: running ones, or those with a badge.
std::vector<PanelApplication> listedApplications(BOOL running);

// Builds their item views into the strip, and sets how far it scrolls and how many pages it has.
void fillStrip(PanelBuild &build, const std::vector<PanelApplication> &applications);

// Builds the application's item view into the strip, as the one at `index`.
void addItem(PanelBuild &build, const PanelApplication &application, int index);

// The parts of an item view.
void makeCard(PanelBuild &build, const PanelApplication &application, UIView *itemView,
              UIImageView *iconImage);
void addBadge(PanelBuild &build, const PanelApplication &application, UIView *itemView, CGRect iconFrame);
void drawClock(UIView *itemView, UIView *iconImage);

// Sets the clock's variables in State.h to this moment.
void readClock();

// Lays the row of dots out for `pages` in a content view of that width.
void placeDots(UIView *dots, CGFloat width);

// Says over the whole strip that there is nothing to show; takes off `datas` what carries no badge.
UILabel *addEmptyText(UIView *strip, BOOL running, UIColor *ink);

// A label in the panel's type: centred, in ink.
UILabel *panelLabel(CGRect frame, NSString *text, UIFont *font, UIColor *ink);

} // namespace pendix
