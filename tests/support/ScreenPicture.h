#pragma once

#include <X11/Xlib.h>
#include <X11/Xutil.h>

#include <string>

#include "Image.h"

namespace quorb {

/// What stands on a display of 24 bits a pixel; empty when it cannot be reached.
inline PixelImage ScreenPicture(const std::string& displayName) {
  PixelImage picture;
  Display* const display = XOpenDisplay(displayName.c_str());
  if (display == nullptr) return picture;
  const int screen = XDefaultScreen(display);
  const auto width = static_cast<unsigned>(XDisplayWidth(display, screen));
  const auto height = static_cast<unsigned>(XDisplayHeight(display, screen));
  XImage* const image =
      XGetImage(display, XDefaultRootWindow(display), 0, 0, width, height, AllPlanes, ZPixmap);
  if (image != nullptr) {
    picture.width = image->width;
    picture.height = image->height;
    picture.rgb.reserve(3 * static_cast<std::size_t>(width) * height);
    for (int y = 0; y < image->height; ++y) {
      for (int x = 0; x < image->width; ++x) {
        const unsigned long pixel = XGetPixel(image, x, y);
        for (const int shift : {16, 8, 0})
          picture.rgb.push_back(static_cast<std::uint8_t>(pixel >> shift & 255));
      }
    }
    XDestroyImage(image);
  }
  XCloseDisplay(display);
  return picture;
}

}  // namespace quorb
