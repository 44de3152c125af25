#pragma once

#include <QOpenGLFramebufferObject>
#include <QOpenGLWidget>
#include <memory>

namespace quorb {

/// Makes the last picture of a widget readable outside its paint event: a multisampled picture cannot be
/// read, so it is copied into a plain one first. Every call needs the widget's context current.
class PictureReader {
 public:
  /// Binds a copy of the picture for reading. False before the widget's first frame.
  bool Bind(const QOpenGLWidget& widget, QSize devicePixels);
  /// Frees the copy; to be called before the context goes.
  void Release() { copy_.reset(); }

 private:
  bool MakeCopy(const QOpenGLWidget& widget, QSize devicePixels);

  std::unique_ptr<QOpenGLFramebufferObject> copy_;
};

}  // namespace quorb
