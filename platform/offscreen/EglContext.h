#pragma once

#include <memory>
#include <string>

namespace quorb {

/// An OpenGL context, compatibility profile, that needs no window and no display server. It is current in the
/// thread that made it from its creation on.
class EglContext {
 public:
  /// Null when OpenGL cannot be started here; `error` then says what is missing and what to install.
  static std::unique_ptr<EglContext> Create(std::string& error);

  ~EglContext();
  EglContext(const EglContext&) = delete;
  EglContext& operator=(const EglContext&) = delete;

  /// Makes the context current again in this thread. False when the driver refuses.
  bool MakeCurrent() const;

 private:
  struct Handles;
  explicit EglContext(std::unique_ptr<Handles> made);
  static bool TryDisplay(Handles& handles, std::string& reason);
  std::unique_ptr<Handles> handles;
};

}  // namespace quorb
