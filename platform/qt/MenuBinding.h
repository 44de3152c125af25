#pragma once

#include <QMenuBar>
#include <vector>

#include "Controls.h"

namespace quorb {

/// Fills the menu bar with the menus of the window, from the left, down to their last entries. A menu none of
/// whose entries is visible is not shown; neither is the bar itself while its first menu is hidden.
void BindMenuBar(QMenuBar& widget, const std::vector<Menu*>& menus);

}  // namespace quorb
