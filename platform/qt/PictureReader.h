#pragma once

#include <QOpenGLFramebufferObject>
#include <QOpenGLWidget>
#include <memory>

namespace quorb {

/// Makes the last picture of a widget readable outside its paint event: a multisampled picture cannot be
/// read, so it is copied into a plain one first.
class PictureReader {
 public:
  /// Makes the widget's context current with the picture bound for reading, and the viewport on all of it.
  /// False when there is no picture: before the widget's first frame, and when no copy can be made.
  bool Begin(QOpenGLWidget& widget, QSize devicePixels);
  /// Puts the context back to what it was before Begin.
  void End(QOpenGLWidget& widget) const;
  /// Frees the copy; to be called with the context current, before it goes.
  void Release() { copy_.reset(); }

 private:
  bool MakeCopy(const QOpenGLWidget& widget, QSize devicePixels);

  std::unique_ptr<QOpenGLFramebufferObject> copy_;
  bool wasCurrent_ = false;
};

}  // namespace quorb
