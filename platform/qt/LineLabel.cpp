#include "LineLabel.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

namespace quorb {

namespace {

constexpr int kFewestCharacters = 4;

}  // namespace

LineLabel::LineLabel(QWidget* parent) : QLabel(parent) {
  setTextFormat(Qt::PlainText);
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

QSize LineLabel::minimumSizeHint() const {
  return {fontMetrics().averageCharWidth() * kFewestCharacters, QLabel::minimumSizeHint().height()};
}

QString LineLabel::Shown() const {
  QString line = text();
  line.replace('\n', ' ').remove('\r');
  return fontMetrics().elidedText(line, Qt::ElideRight, contentsRect().width() - 2 * margin());
}

bool LineLabel::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip && Shown() != text()) {
    // As paragraphs, since a text in which "<" stands would be taken for markup.
    const QString whole = toolTip().isEmpty() ? text() : text() + "\n" + toolTip();
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), Qt::convertFromPlainText(whole), this);
    return true;
  }
  return QLabel::event(event);
}

void LineLabel::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  drawFrame(&painter);
  const QRect inside = contentsRect().adjusted(margin(), 0, -margin(), 0);
  style()->drawItemText(&painter, inside, static_cast<int>(alignment()), palette(), isEnabled(), Shown(),
                        foregroundRole());
}

void LineLabel::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && clicked) clicked();
}

void LineLabel::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && doubleClicked) doubleClicked();
}

}  // namespace quorb
