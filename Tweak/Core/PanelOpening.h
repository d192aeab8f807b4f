// Opening the panel and leaving its edit mode, for what does so from outside the panel.
#pragma once

#include <SpringBoard/SpringBoard.h>

namespace pendix {

// Opens the panel out of the indicator, whatever `enable` says; builds nothing while it is shown.
void bringUpPanel(SpringBoard *springBoard);

// The close marks shrink away.
void endEditing();

} // namespace pendix
