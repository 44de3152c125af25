#include "FontFiles.h"

#include <fontconfig/fontconfig.h>

#include <memory>

namespace quorb {

namespace {

struct PatternDeleter {
  void operator()(FcPattern* pattern) const { FcPatternDestroy(pattern); }
};
using Pattern = std::unique_ptr<FcPattern, PatternDeleter>;

const FcChar8* AsFcText(const std::string& text) {
  return reinterpret_cast<const FcChar8*>(text.c_str());
}

}  // namespace

std::string FindFontFile(const std::string& face, bool bold, bool italic) {
  const Pattern wanted(FcPatternCreate());
  FcPatternAddString(wanted.get(), FC_FAMILY, AsFcText(face));
  FcPatternAddInteger(wanted.get(), FC_WEIGHT, bold ? FC_WEIGHT_BOLD : FC_WEIGHT_NORMAL);
  FcPatternAddInteger(wanted.get(), FC_SLANT, italic ? FC_SLANT_ITALIC : FC_SLANT_ROMAN);
  FcPatternAddBool(wanted.get(), FC_SCALABLE, FcTrue);
  FcConfigSubstitute(nullptr, wanted.get(), FcMatchPattern);
  FcDefaultSubstitute(wanted.get());

  FcResult result = FcResultNoMatch;
  const Pattern found(FcFontMatch(nullptr, wanted.get(), &result));
  FcChar8* file = nullptr;
  if (!found || FcPatternGetString(found.get(), FC_FILE, 0, &file) != FcResultMatch) return {};
  return reinterpret_cast<const char*>(file);
}

}  // namespace quorb
