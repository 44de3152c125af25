#include "PointerShapes.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

namespace quorb {

namespace {

constexpr int kSide = 24;
constexpr int kMiddle = kSide / 2;

constexpr Qt::CursorShape kDesktopShapes[] = {
    Qt::ArrowCursor,     Qt::ArrowCursor,   Qt::CrossCursor,     Qt::IBeamCursor,
    Qt::ArrowCursor,     Qt::SizeAllCursor, Qt::SizeBDiagCursor, Qt::SizeVerCursor,
    Qt::SizeFDiagCursor, Qt::SizeHorCursor, Qt::UpArrowCursor,   Qt::WaitCursor,
    Qt::ForbiddenCursor, Qt::BusyCursor,    Qt::WhatsThisCursor, Qt::SizeAllCursor};

/// Lines in black with a white edge, so that they can be seen over any background.
QCursor Drawn(const QPainterPath& path) {
  QPixmap picture(kSide, kSide);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.strokePath(path, QPen(Qt::white, 4, Qt::SolidLine, Qt::RoundCap));
  painter.strokePath(path, QPen(Qt::black, 1.6, Qt::SolidLine, Qt::RoundCap));
  return QCursor(picture, kMiddle, kMiddle);
}

void AddArrowHead(QPainterPath& path, QPointF tip, QPointF one, QPointF other) {
  path.moveTo(one);
  path.lineTo(tip);
  path.lineTo(other);
}

QCursor Lens() {
  QPainterPath path;
  path.addEllipse(QPointF(10, 10), 6.5, 6.5);
  path.moveTo(15, 15);
  path.lineTo(21, 21);
  return Drawn(path);
}

/// An open circle whose end is an arrow.
QCursor Ring(double squeeze) {
  QPainterPath path;
  const QRectF ring(kMiddle - 8 * squeeze, kMiddle - 8, 16 * squeeze, 16);
  path.arcMoveTo(ring, 60);
  path.arcTo(ring, 60, 300);
  const QPointF end = path.currentPosition();
  AddArrowHead(path, end, end + QPointF(-4, -3), end + QPointF(2, -5));
  return Drawn(path);
}

/// Two rings across each other.
QCursor Ball() {
  QPainterPath path;
  path.addEllipse(QPointF(kMiddle, kMiddle), 9, 9);
  path.addEllipse(QPointF(kMiddle, kMiddle), 9, 3.5);
  path.addEllipse(QPointF(kMiddle, kMiddle), 3.5, 9);
  return Drawn(path);
}

/// A long arrow into the depth, one head at each end.
QCursor Depth() {
  QPainterPath path;
  path.moveTo(5, 20);
  path.lineTo(18, 5);
  AddArrowHead(path, {18, 5}, {12, 6}, {18, 11});
  AddArrowHead(path, {5, 20}, {5, 15}, {10, 20});
  return Drawn(path);
}

}  // namespace

QCursor PointerShape(int id, const std::string& icon) {
  if (id >= 0 && id <= 15) return kDesktopShapes[id];
  switch (id) {
    case 99: {
      const QPixmap picture(QString::fromStdString(icon));
      return picture.isNull() ? QCursor(Qt::ArrowCursor) : QCursor(picture);
    }
    case 200:
      return Lens();
    case 201:
      return Qt::OpenHandCursor;
    case 202:
      return Depth();
    case 203:
    case 211:
      return Ring(0.6);
    case 204:
      return Qt::SizeVerCursor;
    case 205:
      return Qt::SizeHorCursor;
    case 206:
      return Ring(1);
    case 207:
      return Ball();
    case 210:
      return Qt::SizeAllCursor;
    case 212:
      return Qt::SizeFDiagCursor;
    default:
      return Qt::ArrowCursor;
  }
}

}  // namespace quorb
