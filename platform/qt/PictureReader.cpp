#include "PictureReader.h"

#include <QOpenGLContext>
#include <QOpenGLExtraFunctions>

namespace quorb {

bool PictureReader::Bind(const QOpenGLWidget& widget, QSize devicePixels) {
  if (widget.defaultFramebufferObject() == 0 || !MakeCopy(widget, devicePixels)) return false;
  QOpenGLExtraFunctions& gl = *widget.context()->extraFunctions();
  gl.glBindFramebuffer(GL_READ_FRAMEBUFFER, widget.defaultFramebufferObject());
  gl.glBindFramebuffer(GL_DRAW_FRAMEBUFFER, copy_->handle());
  const int width = devicePixels.width();
  const int height = devicePixels.height();
  gl.glBlitFramebuffer(0, 0, width, height, 0, 0, width, height, GL_COLOR_BUFFER_BIT, GL_NEAREST);
  gl.glBindFramebuffer(GL_FRAMEBUFFER, copy_->handle());
  gl.glViewport(0, 0, width, height);
  return true;
}

// A multisampled picture can only be copied into one of the same format.
bool PictureReader::MakeCopy(const QOpenGLWidget& widget, QSize devicePixels) {
  if (copy_ != nullptr && copy_->size() == devicePixels) return true;
  QOpenGLFramebufferObjectFormat format;
  if (widget.textureFormat() != 0) format.setInternalTextureFormat(widget.textureFormat());
  copy_ = std::make_unique<QOpenGLFramebufferObject>(devicePixels, format);
  if (!copy_->isValid()) copy_.reset();
  return copy_ != nullptr;
}

}  // namespace quorb
