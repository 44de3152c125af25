#pragma once

#include "Controls.h"

namespace quorb {

/// The movie window's lines: how many frames are done, and the time between them.
struct VideoWindow {
  TextBox Text3, Text2;
};

/// The movie window; made on its first use.
VideoWindow& frmVideo();

}  // namespace quorb
