#pragma once

#include <map>
#include <memory>
#include <string>
#include <tuple>
#include <vector>

#include "glCtl.h"

class FTFont;

namespace quorb {

/// The fonts of one OpenGL context and the text drawn with them. Handles count from 1; drawing with any other
/// handle, or with one of the wrong kind, draws nothing. Every call but the constructor and the destructor
/// needs the context current; Release stands before the end of it. Drawing leaves the OpenGL state as it was.
///
/// The same font asked for twice is loaded once and gives the same handle. A font that cannot be loaded gets
/// a handle that draws nothing, and one line on standard error.
class TextFonts : public HostText {
 public:
  TextFonts();
  ~TextFonts() override;

  /// Device pixels to a pixel at 96 to the inch, for the flat fonts made from here on; 1 at the start.
  void SetPixelRatio(double ratio) { pixelRatio = ratio; }

  /// Smooths the edges of solid letters.
  void SetAntialiasing(bool on) { antialiasing = on; }

  void NewOutlineFont(int deviceHandle, int& handle, const std::string& face, bool bold, bool italic,
                      double extrusion) override;
  void NewBitmapFont(int deviceHandle, int& handle, const std::string& face, bool bold, bool italic,
                     int size) override;

  /// Between glBegin and glEnd OpenGL draws no text; there it is kept for DrawKeptTexts.
  void Draw3D(int font, const std::string& text, double x, double y, double z, double size,
              int colour) override;

  /// A point outside the view draws nothing. As Draw3D between glBegin and glEnd.
  void DrawBitmap(int font, const std::string& text, double x, double y, double z, int colour) override;

  /// Draws the texts that came between glBegin and glEnd, under the matrices of now, and forgets them.
  void DrawKeptTexts();

  /// Frees all fonts; their handles draw nothing from here on.
  void Release();

  /// Height of a flat font's letters above their base line, in device pixels; 0 for no font.
  double Ascender(int font) const;

 private:
  enum class Kind { outline, bitmap };
  /// File, kind, size in points, share of extrusion.
  using Key = std::tuple<std::string, Kind, int, double>;
  /// What a caller asks for: name of the face, bold, italic, and the rest of the key.
  using Request = std::tuple<std::string, bool, bool, Kind, int, double>;
  struct Font {
    Kind kind = Kind::outline;
    std::unique_ptr<FTFont> face;
  };
  struct KeptText {
    int font = 0;
    std::string text;
    double x = 0.0, y = 0.0, z = 0.0, size = 0.0;
    int colour = 0;
  };

  int HandleOf(const Request& request);
  int HandleOfFile(const Key& key, const std::string& face);
  std::unique_ptr<FTFont> Load(const Key& key) const;
  FTFont* Face(int font, Kind kind) const;

  double pixelRatio = 1.0;
  bool antialiasing = false;
  std::vector<Font> fonts;
  std::map<Key, int> handles;
  std::map<Request, int> requests;  // looking for the file of a face takes longer than drawing a text
  std::vector<KeptText> keptTexts;
};

}  // namespace quorb
