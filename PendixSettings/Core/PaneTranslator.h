// The pane's texts, and its rows' keys: a row is labelled with the text of a settings key, and the key is
// found again from the label.
#pragma once

#import <Foundation/Foundation.h>

namespace pendix::pane {

// "en" or "it": the user's first language when it is one of them, else "en". The pane has no Spanish.
NSString *lang();

// As on the home-screen side, in the pane's language; nil or empty when no table has the text and there is no
// English one.
NSString *Translator(NSString *key);

// The same for what is shown, "(null)" instead of nil: lists, alerts and rows take no nil.
NSString *shownText(NSString *key);

// The key whose text in the pane's language equals `text`; the first one that the table enumerates when
// several do. "(null)" when there is none, or no table.
NSString *getNotTranslated(NSString *text);

} // namespace pendix::pane
