#pragma once

#include <X11/Xlib.h>

#include <string>

namespace quorb {

/// Asks a window to close, as the close button of a window manager does. False when the display or the window
/// cannot be reached.
inline bool CloseWindow(const std::string& displayName, unsigned long window) {
  Display* const display = XOpenDisplay(displayName.c_str());
  if (display == nullptr) return false;
  XEvent event = {};
  event.xclient.type = ClientMessage;
  event.xclient.window = window;
  event.xclient.message_type = XInternAtom(display, "WM_PROTOCOLS", True);
  event.xclient.format = 32;
  event.xclient.data.l[0] = static_cast<long>(XInternAtom(display, "WM_DELETE_WINDOW", True));
  const bool sent = XSendEvent(display, window, False, NoEventMask, &event) != 0;
  XCloseDisplay(display);
  return sent;
}

}  // namespace quorb
