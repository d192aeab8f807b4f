// A card of the colour page.
#pragma once

#include <UIKit/UIKit.h>

namespace pendix::pane {

// Distances from the left, in points, that the page's width asks for.
struct CardLayout {
    CGFloat correction; // of what is centred
    CGFloat pageLeft;   // of the view that turns the cards
    CGFloat cardLeft;   // of what is painted on a card
};

// On an iPad the page is narrower than its view: this takes that off the pane's `width`.
CardLayout fitCards();

// The card with that number, owned by the caller. The colour runs into the next one of the list.
UIViewController *newCard(size_t index, const CardLayout &layout);

// The colour that a card stands for.
UIColor *colorOfCard(UIViewController *card);

// Makes the hint on the card blink; the platform takes animations off what leaves the screen.
void blinkHint(UIViewController *card);

} // namespace pendix::pane
