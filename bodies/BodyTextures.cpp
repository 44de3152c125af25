#include "BodyTextures.h"

namespace quorb {

std::string TextureDirectory;
std::string EarthTextureName = "earthjpg.jpg";
std::string MoonTextureName = "moonjpg.jpg";
std::function<void(const std::string&)> TextureLog;

namespace {

constexpr int kSun = 1, kMercury = 2, kVenus = 3, kEarth = 4, kMars = 5, kJupiter = 6;

std::string InTextureDirectory(const std::string& name) {
  const bool hasMark =
      TextureDirectory.empty() || TextureDirectory.ends_with('/') || TextureDirectory.ends_with('\\');
  return TextureDirectory + (hasMark ? "" : "/") + name;
}

}  // namespace

std::string CentralTextureName(int moonFocus, int focusBody) {
  if (moonFocus == 1) return MoonTextureName;
  switch (focusBody) {
    case kSun:
      return "2k_sun.jpg";
    case kMercury:
      return "2k_mercury.jpg";
    case kVenus:
      return "2k_venus_atmosphere.jpg";
    case kEarth:
      return EarthTextureName;
    case kMars:
      return "2k_mars.jpg";
    case kJupiter:
      return "2k_jupiter.jpg";
    default:
      return {};
  }
}

void LoadBodyTexture(glCtl& host, HostTexture*& texture, const std::string& name) {
  if (texture == nullptr) texture = &host.NewTexture();
  std::string error;
  if (!texture->Load(InTextureDirectory(name), error) && TextureLog) TextureLog(error);
}

}  // namespace quorb
