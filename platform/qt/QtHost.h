#pragma once

#include <QOpenGLWidget>
#include <QTimer>
#include <memory>

#include "GlHost.h"
#include "HostEvents.h"

namespace quorb {

class QtHost;

/// The widget that shows the plot.
class PlotWidget : public QOpenGLWidget {
 public:
  explicit PlotWidget(QWidget* parent = nullptr);
  ~PlotWidget() override;

  /// The host control that draws in this widget.
  glCtl& Host();

  /// Sends the host's events to `newEvents` from here on; to be called before the widget is shown.
  void Start(HostEvents& newEvents);

 protected:
  void initializeGL() override;
  void resizeGL(int width, int height) override;
  void paintGL() override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  void ReleaseContext();

  std::unique_ptr<QtHost> host_;
  HostEvents* events_ = nullptr;
  QTimer ticks_;
  int wheelRest_ = 0;
};

}  // namespace quorb
