#include <GL/gl.h>

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <vector>

#include "BitmapFile.h"
#include "ClassGl.h"

namespace quorb {

namespace {

constexpr const char* kDefaultName = "ImageSaved.bmp";
constexpr char kMark = static_cast<char>(std::filesystem::path::preferred_separator);

/// The path of a file in a directory, which may be written with either mark, and with one at its end or not.
std::string PathIn(std::string directory, const std::string& name) {
  std::replace(directory.begin(), directory.end(), '\\', kMark);
  if (!directory.ends_with(kMark)) directory += kMark;
  return directory + (name.empty() ? kDefaultName : name);
}

/// A part of the view, in pixels from its bottom left corner.
struct Part {
  int x, y, width, height;
  int rowLength;  ///< pixels of a row of the whole view; 0 for a part at its corner
};

Part CutAtViewport(Part part) {
  GLint viewport[4] = {};
  glGetIntegerv(GL_VIEWPORT, viewport);
  part.width = std::min(part.width, viewport[2] - part.x);
  part.height = std::min(part.height, viewport[3] - part.y);
  part.rowLength = part.x > 0 || part.y > 0 ? viewport[2] : 0;
  return part;
}

void SwapRedAndBlue(std::vector<std::uint8_t>& rows, std::size_t rowBytes, int width) {
  const std::size_t pixelBytes = 3 * static_cast<std::size_t>(width);
  for (std::size_t row = 0; row < rows.size(); row += rowBytes) {
    for (std::size_t at = row; at < row + pixelBytes; at += 3)
      std::swap(rows[at], rows[at + 2]);
  }
}

/// The pixels as blue, green, red, the bottom row first, each row a multiple of 4 bytes long.
void ReadRows(const Part& part, std::vector<std::uint8_t>& rows) {
  const std::size_t rowBytes = BitmapRowBytes(part.width);
  rows.resize(rowBytes * static_cast<std::size_t>(part.height));
  glPixelStorei(GL_UNPACK_ALIGNMENT, 4);
  glPixelStorei(GL_UNPACK_SKIP_ROWS, part.y);
  glPixelStorei(GL_UNPACK_SKIP_PIXELS, part.x);
  glPixelStorei(GL_UNPACK_ROW_LENGTH, part.rowLength);
  glReadPixels(part.x, part.y, part.width, part.height, GL_RGB, GL_UNSIGNED_BYTE, rows.data());
  SwapRedAndBlue(rows, rowBytes, part.width);
}

bool ReadAndWrite(const std::string& path, const Part& wanted, std::vector<std::uint8_t>& rows) {
  const Part part = CutAtViewport(wanted);
  if (part.x < 0 || part.y < 0 || part.width < 1 || part.height < 1) return false;
  ReadRows(part, rows);
  std::string error;
  return WriteBitmapFile(path, part.width, part.height, rows, error);
}

}  // namespace

bool ClassGl::WriteBitmap(const std::string& path, int x, int y, int w, int h) {
  Host.ShowBusy(true);
  bool written = false;
  if (Host.BeginReading()) {
    written = ReadAndWrite(path, {x, y, w + 1, h, 0}, CapturedRows);
    Host.EndReading();
  }
  Host.ShowBusy(false);
  return written;
}

bool ClassGl::SaveBMP(const std::string& name, const std::string& directory) {
  return WriteBitmap(PathIn(directory, name), 0, 0, Host.Width(), Host.Height());
}

}  // namespace quorb
