#include "frmVideo.h"

namespace quorb {

VideoWindow& frmVideo() {
  static VideoWindow window;
  return window;
}

}  // namespace quorb
