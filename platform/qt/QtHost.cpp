#include "QtHost.h"

#include <GL/gl.h>

#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QOpenGLContext>
#include <QSurfaceFormat>
#include <QWheelEvent>
#include <cmath>

#include "KeyCodes.h"
#include "PictureReader.h"
#include "PointerShapes.h"

namespace quorb {

namespace {

/// Just below 60 ticks a second.
constexpr int kTickMilliseconds = 17;
constexpr int kSamples = 4;
/// What a wheel tells for one notch, and the part of it that is passed on; finer turns add up to that.
constexpr double kNotch = 120;
constexpr int kPartOfNotch = 30;

QSize DevicePixels(const QWidget& widget) {
  const double ratio = widget.devicePixelRatioF();
  return {static_cast<int>(std::lround(widget.width() * ratio)),
          static_cast<int>(std::lround(widget.height() * ratio))};
}

/// The button whose press or release is told, or the one held during a move.
int HeldButton(const QMouseEvent& event) {
  for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
    if (event.buttons().testFlag(button)) return ButtonOf(button);
  }
  return 0;
}

// The form has set the view by them already: the plot would step it again, or put the eye on the origin.
bool IsKeyOfForm(int key) {
  return key == Qt::Key_X || key == Qt::Key_Y || key == Qt::Key_Z || key == Qt::Key_I;
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

  void SetMousePointer(int id, const std::string& icon) override {
    GlHost::SetMousePointer(id, icon);
    widget_.setCursor(PointerShape(id, icon));
  }

  void ShowBusy(bool busy) override {
    if (busy) {
      QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    } else {
      QGuiApplication::restoreOverrideCursor();
    }
  }

  bool MakeCurrent() override {
    if (!widget_.isValid()) return false;
    wasCurrent_ = QOpenGLContext::currentContext() == widget_.context();
    widget_.makeCurrent();
    return true;
  }

  void DoneCurrent() override {
    if (wasCurrent_) {
      widget_.makeCurrent();  // binds the widget's own picture again
    } else {
      widget_.doneCurrent();
    }
  }

  bool BeginReading() override {
    if (!MakeCurrent()) return false;
    if (!reader_.Bind(widget_, DevicePixels(widget_))) {
      DoneCurrent();
      return false;
    }
    glPushClientAttrib(GL_CLIENT_PIXEL_STORE_BIT);
    return true;
  }

  void EndReading() override {
    glPopClientAttrib();
    DoneCurrent();
  }

  void ReleaseAll() {
    reader_.Release();
    GlHost::ReleaseContext();
  }

  using GlHost::BeginFrame;
  using GlHost::DeleteReturnedLists;
  using GlHost::EndFrame;
  using GlHost::SetPixelRatio;

 private:
  PlotWidget& widget_;
  PictureReader reader_;
  bool wasCurrent_ = false;  ///< the widget's context was current when it was made so
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
    if (events_ != nullptr) events_->AnimationTick();
  });
}

PlotWidget::~PlotWidget() {
  ReleaseContext();
}

void PlotWidget::ReleaseContext() {
  if (context() == nullptr) return;
  makeCurrent();
  host_->ReleaseAll();
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
  host_->SetPixelRatio(devicePixelRatioF());
  const QSize size = DevicePixels(*this);
  if (events_ != nullptr) events_->Resize(size.width(), size.height());
}

void PlotWidget::paintGL() {
  if (events_ == nullptr) return;
  const QSize size = DevicePixels(*this);
  host_->DeleteReturnedLists();
  host_->BeginFrame(size.width(), size.height());
  events_->Draw();
  events_->Overlay();
  host_->EndFrame(size.width(), size.height());
}

void PlotWidget::keyPressEvent(QKeyEvent* event) {
  if (events_ == nullptr || IsKeyOfForm(event->key())) return;
  const int code = KeyCodeOf(event->key());
  if (code != 0) events_->KeyDown(code, ShiftMaskOf(event->modifiers()));
  const bool isCharacter = !event->text().isEmpty() && event->key() != Qt::Key_Delete;
  if (isCharacter) events_->KeyPress(event->text().toStdString());
}

void PlotWidget::mousePressEvent(QMouseEvent* event) {
  const QPointF place = event->position() * devicePixelRatioF();
  if (events_ != nullptr)
    events_->MouseDown(ButtonOf(event->button()), ShiftMaskOf(event->modifiers()), place.x(), place.y());
}

void PlotWidget::mouseMoveEvent(QMouseEvent* event) {
  const QPointF place = event->position() * devicePixelRatioF();
  if (events_ != nullptr)
    events_->MouseMove(HeldButton(*event), ShiftMaskOf(event->modifiers()), place.x(), place.y());
}

void PlotWidget::mouseReleaseEvent(QMouseEvent* event) {
  const QPointF place = event->position() * devicePixelRatioF();
  if (events_ != nullptr)
    events_->MouseUp(ButtonOf(event->button()), ShiftMaskOf(event->modifiers()), place.x(), place.y());
}

void PlotWidget::mouseDoubleClickEvent(QMouseEvent* /*event*/) {
  if (events_ != nullptr) events_->DoubleClick();
}

void PlotWidget::wheelEvent(QWheelEvent* event) {
  wheelRest_ += event->angleDelta().y();
  const int parts = wheelRest_ / kPartOfNotch;
  wheelRest_ -= parts * kPartOfNotch;
  if (events_ != nullptr && parts != 0) events_->Wheel(parts * kPartOfNotch / kNotch);
  event->accept();
}

}  // namespace quorb
