#include <turbojpeg.h>

#include <fstream>
#include <iostream>
#include <string>

#include "BodyPictures.h"

namespace quorb {
namespace {

/// Writes a picture as a JPEG file. False when that fails.
bool WriteJpeg(const std::string& path, const PixelImage& image) {
  constexpr int kQuality = 86;
  const tjhandle encoder = tjInitCompress();
  unsigned char* bytes = nullptr;
  unsigned long size = 0;
  const bool made = tjCompress2(encoder, image.rgb.data(), image.width, 0, image.height, TJPF_RGB, &bytes,
                                &size, TJSAMP_420, kQuality, TJFLAG_ACCURATEDCT | TJFLAG_PROGRESSIVE) == 0;
  std::ofstream file(path, std::ios::binary);
  if (made) file.write(reinterpret_cast<const char*>(bytes), static_cast<std::streamsize>(size));
  file.close();
  tjFree(bytes);
  tjDestroy(encoder);
  return made && file.good();
}

int MakeAll(const std::string& data, const std::string& target) {
  LandMap land;
  std::string error;
  if (!land.Read(data, error)) {
    std::cerr << error << '\n';
    return 1;
  }
  bool written = WriteJpeg(target + "/earthjpg.jpg", EarthPicture(land));
  written = WriteJpeg(target + "/moonjpg.jpg", MoonPicture()) && written;
  written = WriteJpeg(target + "/2k_sun.jpg", SunPicture()) && written;
  written = WriteJpeg(target + "/2k_mercury.jpg", MercuryPicture()) && written;
  written = WriteJpeg(target + "/2k_venus_atmosphere.jpg", VenusPicture()) && written;
  written = WriteJpeg(target + "/2k_mars.jpg", MarsPicture()) && written;
  written = WriteJpeg(target + "/2k_jupiter.jpg", JupiterPicture()) && written;
  if (!written) std::cerr << "Not every picture could be written to " << target << ".\n";
  return written ? 0 : 1;
}

}  // namespace
}  // namespace quorb

int main(int argumentCount, char** arguments) {
  if (argumentCount != 3) {
    std::cerr << "Usage: quorb-make-textures DATA-DIRECTORY TARGET-DIRECTORY\n";
    return 2;
  }
  return quorb::MakeAll(arguments[1], arguments[2]);
}
