#pragma once

#include <string>

#include "glCtl.h"

namespace quorb {

/// A texture of OpenGL. Its picture has the first row at the top, goes round without a seam to the left and
/// right, and ends at its top and bottom.
class GlTexture : public HostTexture {
 public:
  bool Load(const std::string& path, std::string& error) override;
  bool HasPicture() const override { return hasPicture; }
  void Bind() override;

  /// Frees what lives in the context; to be called with it current, before it goes. A picture is read again
  /// when it is bound in the next context.
  void Release();

 private:
  std::string source;
  unsigned name = 0;
  bool hasPicture = false;
};

}  // namespace quorb
