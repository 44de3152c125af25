#include "FloatingPanel.h"

#include <QCursor>
#include <QMouseEvent>
#include <QTimer>
#include <algorithm>
#include <cmath>

#include "ControlBinding.h"
#include "frmMain.h"

namespace quorb {

namespace {

// The panel's own colours, whatever the theme: black on pale blue.
constexpr QRgb kPaleBlue = 0xD9E8F6;
constexpr QRgb kDisabledText = 0x5A6470;
constexpr int kBorder = 1;

QPalette PanelPalette() {
  QPalette palette{QColor(kPaleBlue)};
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(role, Qt::black);
    palette.setColor(QPalette::Disabled, role, QColor(kDisabledText));
  }
  palette.setColor(QPalette::Base, Qt::white);
  return palette;
}

int Pixels(double twips) {
  return static_cast<int>(std::lround(twips / kTwipsPerPixel));
}

/// A place moved, and narrowed, until it stands whole in a room that is as high at least.
QRect Inside(QRect place, const QSize& room) {
  place.setWidth(std::min(place.width(), room.width()));
  place.moveLeft(std::clamp(place.x(), 0, room.width() - place.width()));
  place.moveTop(std::clamp(place.y(), 0, room.height() - place.height()));
  return place;
}

}  // namespace

FloatingPanel::FloatingPanel(quorb::Panel& control, QWidget& canvas) : QFrame(&canvas), control_(control) {
  TieWidget(*this, control);
  setAccessibleName(QString::fromStdString(control.caption));
  setPalette(PanelPalette());
  setAutoFillBackground(true);
  setFrameShape(QFrame::Box);
  setLineWidth(kBorder);
  setFocusPolicy(Qt::ClickFocus);
  hide();
  control.refresh = [this] { Show(); };
}

void FloatingPanel::Show() {
  const bool comes = control_.visible && !isVisibleTo(parentWidget());
  const bool grows = control_.visible && Pixels(control_.Height) > height();
  Place();
  if (control_.inFront) raise();
  // The window may grow with it, a moment later.
  if (comes || grows) QTimer::singleShot(0, this, [this] { KeepInside(); });
  if (control_.visible == isVisibleTo(parentWidget())) return;
  const QWidget* const focused = window()->focusWidget();
  if (!control_.visible && (focused == this || isAncestorOf(focused))) GiveFocusBack();
  setVisible(control_.visible);
  // The user opens it, and so leaves whatever had the keyboard.
  if (control_.visible) firstFocus_->setFocus(Qt::TabFocusReason);
}

void FloatingPanel::Place() {
  const QSize room = parentWidget()->size();
  const QRect place(Pixels(control_.Left), Pixels(control_.Top), Pixels(control_.Width),
                    std::min(Pixels(control_.Height), room.height()));
  // Nobody could bring it nearer.
  const bool staysInside = !control_.dragStarted;
  setGeometry(staysInside ? Inside(place, room) : place);
}

void FloatingPanel::KeepInside() {
  const int lowestTop = parentWidget()->height() - height();
  if (y() > lowestTop) control_.Top = lowestTop * kTwipsPerPixel;
}

// To the plot, and not to whatever stands next; behind the key that closes the panel, which the plot must not
// see.
void FloatingPanel::GiveFocusBack() {
  parentWidget()->setFocus();
  QTimer::singleShot(0, this, [] { frmMain->GlPlace.SetFocus(); });
}

void FloatingPanel::WatchPointer() {
  setMouseTracking(true);
  installEventFilter(this);
  parentWidget()->installEventFilter(this);
  for (QWidget* child : findChildren<QWidget*>()) {
    child->setMouseTracking(true);
    child->installEventFilter(this);
  }
  Show();
}

void FloatingPanel::SetHoverButton(QWidget& widget, Button& button) {
  hoverWidget_ = &widget;
  hoverButton_ = &button;
}

void FloatingPanel::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || !control_.dragStarted) return;
  const QPointF place = mapFromGlobal(event->globalPosition());
  control_.dragStarted(place.x() * kTwipsPerPixel, place.y() * kTwipsPerPixel);
}

void FloatingPanel::mouseMoveEvent(QMouseEvent* event) {
  if ((event->buttons() & Qt::LeftButton) == 0 || !control_.draggedOver) return;
  // The panel has moved since the event was made: the place on the screen tells where the pointer is in it.
  const QPointF place = mapFromGlobal(event->globalPosition());
  control_.draggedOver(place.x() * kTwipsPerPixel, place.y() * kTwipsPerPixel);
}

bool FloatingPanel::eventFilter(QObject* watched, QEvent* event) {
  if (watched == parentWidget()) {
    if (event->type() == QEvent::Resize) Place();
    return false;
  }
  const bool isHoverWidget = watched == hoverWidget_;
  switch (event->type()) {
    case QEvent::MouseMove:
      PointerMoved(*watched, static_cast<QMouseEvent*>(event)->globalPosition().toPoint());
      break;
    case QEvent::Leave:
      if (!isHoverWidget) break;
      restsOnHoverButton_ = false;
      if (hoverButton_->pointerLeft) hoverButton_->pointerLeft();
      break;
    case QEvent::Show:
    case QEvent::Move:
    case QEvent::Resize:
      if (isHoverWidget || watched == this) NotePointerAtRest();
      break;
    default:
      break;
  }
  return false;
}

void FloatingPanel::PointerMoved(const QObject& over, const QPoint& place) {
  if (place == pointer_) return;
  pointer_ = place;
  if (&over == hoverWidget_ && restsOnHoverButton_) return;
  restsOnHoverButton_ = false;
  if (control_.pointerMoved) control_.pointerMoved();
  if (&over == hoverWidget_ && hoverButton_->pointerMoved) hoverButton_->pointerMoved();
}

void FloatingPanel::NotePointerAtRest() {
  pointer_ = QCursor::pos();
  restsOnHoverButton_ =
      hoverWidget_ != nullptr && hoverWidget_->rect().contains(hoverWidget_->mapFromGlobal(pointer_));
}

}  // namespace quorb
