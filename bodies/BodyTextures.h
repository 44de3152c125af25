#pragma once

#include <functional>
#include <string>

#include "glCtl.h"

namespace quorb {

/// The directory of the pictures of the bodies, the program's own, with or without a mark at its end.
extern std::string TextureDirectory;
/// File names of the Earth's and the Moon's picture, which the user may change.
extern std::string EarthTextureName;
extern std::string MoonTextureName;

/// Takes lines for the diagnostic log; nothing until it is set.
extern std::function<void(const std::string&)> TextureLog;

/// File name of the central body's picture: the Moon's with `moonFocus` 1, else that of the body by its
/// number, 1 Sun to 6 Jupiter; empty for any other.
std::string CentralTextureName(int moonFocus, int focusBody);

/// Loads a file of `TextureDirectory` into a texture of the host, made when `texture` is null. When that
/// fails the texture has no picture, and the diagnostic log says why.
void LoadBodyTexture(glCtl& host, HostTexture*& texture, const std::string& name);

}  // namespace quorb
