#pragma once

#include <X11/Xatom.h>
#include <X11/Xlib.h>

#include <chrono>
#include <string>
#include <thread>

namespace quorb {

/// The text in the clipboard of a display, as its owner hands it out; empty when there is none.
inline std::string ClipboardText(const std::string& displayName) {
  Display* const display = XOpenDisplay(displayName.c_str());
  if (display == nullptr) return {};
  const Window window = XCreateSimpleWindow(display, XDefaultRootWindow(display), 0, 0, 1, 1, 0, 0, 0);
  const Atom target = XInternAtom(display, "UTF8_STRING", False);
  const Atom place = XInternAtom(display, "QUORB_TEST", False);
  XConvertSelection(display, XInternAtom(display, "CLIPBOARD", False), target, place, window, CurrentTime);
  const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(5);
  XEvent event = {};
  while (XCheckTypedEvent(display, SelectionNotify, &event) == False &&
         std::chrono::steady_clock::now() < end)
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  std::string text;
  Atom type = 0;
  int bits = 0;
  unsigned long length = 0, rest = 0;
  unsigned char* bytes = nullptr;
  constexpr long kMost = 10000;
  if (XGetWindowProperty(display, window, place, 0, kMost, False, AnyPropertyType, &type, &bits, &length,
                         &rest, &bytes) == Success &&
      bytes != nullptr) {
    text.assign(reinterpret_cast<const char*>(bytes), length);
    XFree(bytes);
  }
  XCloseDisplay(display);
  return text;
}

}  // namespace quorb
