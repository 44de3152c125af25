// A bare window with an OpenGL view: what the viewer's start and memory are compared with.
#include <GL/gl.h>

#include <QApplication>
#include <QMainWindow>
#include <QOpenGLWidget>
#include <QSurfaceFormat>

#include "FirstFrame.h"

namespace {

class BareView : public QOpenGLWidget {
 public:
  using QOpenGLWidget::QOpenGLWidget;

 protected:
  void paintGL() override {
    glClearColor(0.04F, 0.08F, 0.27F, 1);
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
    glBegin(GL_LINES);
    glVertex3f(-1, -1, 0);
    glVertex3f(1, 1, 0);
    glEnd();
  }
};

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QSurfaceFormat format;
  format.setProfile(QSurfaceFormat::CompatibilityProfile);
  format.setDepthBufferSize(24);
  format.setSamples(4);
  QMainWindow window;
  auto* view = new BareView(&window);
  view->setFormat(format);
  window.setCentralWidget(view);
  window.resize(1280, 860);
  QObject::connect(view, &QOpenGLWidget::frameSwapped, [] { ReportFirstFrameAndEnd(); });
  window.show();
  return QApplication::exec();
}
