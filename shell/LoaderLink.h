#pragma once

#include "CommExcl.h"
#include "LoaderWindow.h"

namespace quorb {

/// The main window as the loader sees it.
LoaderWindow& LoaderLinkOfWindow();

}  // namespace quorb
