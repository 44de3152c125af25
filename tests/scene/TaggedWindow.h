#pragma once

#include <string>

#include "SceneWindow.h"

namespace quorb {

/// The main window's part of a test. It is the process's window for as long as it lives.
class TaggedWindow : public SceneWindow {
 public:
  TaggedWindow() { SetSceneWindow(this); }
  ~TaggedWindow() override { SetSceneWindow(nullptr); }
  TaggedWindow(const TaggedWindow&) = delete;
  TaggedWindow& operator=(const TaggedWindow&) = delete;

  std::string Check9Tag() const override { return tag; }
  void SetCheck9Tag(const std::string& text) override { tag = text; }

  std::string tag;
};

}  // namespace quorb
