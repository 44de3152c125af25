#pragma once

namespace quorb {

/// Gives each position of the two tool bars its picture.
void toolbarSet();

/// Puts the order of Toolbar1 back that the user gave it in an earlier run; a stored text that is none is
/// passed over.
void RestoreToolbarLayout();

/// Stores the order of Toolbar1, and refreshes `AppDir`: behind a customising, and at a double click on the
/// bar.
void SaveToolbarLayout();

}  // namespace quorb
