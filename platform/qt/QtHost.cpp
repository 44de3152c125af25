#include "QtHost.h"

#include <QOpenGLContext>
#include <QSurfaceFormat>
#include <cmath>

namespace quorb {

namespace {

constexpr int kTickMilliseconds = 16;
constexpr int kSamples = 4;

QSize DevicePixels(const QWidget& widget) {
  const double ratio = widget.devicePixelRatioF();
  return {static_cast<int>(std::lround(widget.width() * ratio)),
          static_cast<int>(std::lround(widget.height() * ratio))};
}

}  // namespace

/// The host control of a widget.
class QtHost : public GlHost {
 public:
  QtHost(PlotWidget& widget, std::function<void(bool)> applyAnimation)
      : GlHost(std::move(applyAnimation)), widget_(widget) {}

  void Redraw() override { widget_.update(); }
  int Width() const override { return DevicePixels(widget_).width(); }
  int Height() const override { return DevicePixels(widget_).height(); }

  using GlHost::BeginFrame;
  using GlHost::DeleteReturnedLists;
  using GlHost::EndFrame;
  using GlHost::ReleaseContext;
  using GlHost::SetPixelRatio;

 private:
  PlotWidget& widget_;
};

PlotWidget::PlotWidget(QWidget* parent) : QOpenGLWidget(parent) {
  host_ = std::make_unique<QtHost>(*this, [this](bool on) {
    if (on) {
      ticks_.start(kTickMilliseconds);
    } else {
      ticks_.stop();
    }
  });
  setFocusPolicy(Qt::StrongFocus);
  setMinimumSize(1, 1);
  connect(&ticks_, &QTimer::timeout, this, [this] {
    if (animationTick) animationTick();
  });
}

PlotWidget::~PlotWidget() {
  ReleaseContext();
}

void PlotWidget::ReleaseContext() {
  if (context() == nullptr) return;
  makeCurrent();
  host_->ReleaseContext();
  doneCurrent();
}

glCtl& PlotWidget::Host() {
  return *host_;
}

void PlotWidget::Start(HostEvents& newEvents) {
  events_ = &newEvents;
  events_->Initialise();
  QSurfaceFormat wanted;
  wanted.setRenderableType(QSurfaceFormat::OpenGL);
  wanted.setProfile(QSurfaceFormat::CompatibilityProfile);
  wanted.setDepthBufferSize(host_->DepthBufferWanted() ? 24 : 0);
  wanted.setSamples(kSamples);
  setFormat(wanted);
}

void PlotWidget::initializeGL() {
  host_->SetPixelRatio(devicePixelRatioF());
  if (events_ != nullptr) events_->ContextReady();
}

void PlotWidget::resizeGL(int, int) {
  const QSize size = DevicePixels(*this);
  if (events_ != nullptr) events_->Resize(size.width(), size.height());
}

void PlotWidget::paintGL() {
  if (events_ == nullptr) return;
  const QSize size = DevicePixels(*this);
  host_->BeginFrame(size.width(), size.height());
  events_->Draw();
  events_->Overlay();
  host_->EndFrame(size.width(), size.height());
  host_->DeleteReturnedLists();
}

void PlotWidget::mouseDoubleClickEvent(QMouseEvent*) {
  if (doubleClick) doubleClick();
}

}  // namespace quorb
