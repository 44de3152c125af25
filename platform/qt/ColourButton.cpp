#include "ColourButton.h"

#include <QColorDialog>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "NumberText.h"

namespace quorb {

namespace {

constexpr int kMargin = 5;

int Part(const TextBox& field) {
  const double value = ValText(field.text.Get());
  return std::isfinite(value) ? static_cast<int>(std::lround(std::clamp(value, 0.0, 255.0))) : 0;
}

}  // namespace

ColourButton::ColourButton(const QString& name, std::array<TextBox*, 3> fields, QWidget* parent)
    : QPushButton(parent), fields_(fields) {
  setAccessibleName("Choose the colour: " + name);
  setToolTip(accessibleName());
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  for (TextBox* field : fields_) {
    field->refresh = [this, field, showField = field->refresh] {
      showField();
      setVisible(field->visible);
      update();
    };
    field->Refresh();
  }
  connect(this, &QPushButton::clicked, this, [this] { Choose(); });
}

QSize ColourButton::sizeHint() const {
  const int height = fontMetrics().height() + 2 * kMargin;
  return {height * 3 / 2, height};
}

void ColourButton::paintEvent(QPaintEvent* event) {
  QPushButton::paintEvent(event);
  QPainter painter(this);
  painter.setPen(Qt::black);
  painter.setBrush(Colour());
  painter.drawRect(rect().adjusted(kMargin, kMargin, -kMargin - 1, -kMargin - 1));
}

QColor ColourButton::Colour() const {
  return {Part(*fields_[0]), Part(*fields_[1]), Part(*fields_[2])};
}

void ColourButton::Choose() {
  const QColor chosen = QColorDialog::getColor(Colour(), window(), accessibleName());
  if (!chosen.isValid()) return;
  fields_[0]->text = std::to_string(chosen.red());
  fields_[1]->text = std::to_string(chosen.green());
  fields_[2]->text = std::to_string(chosen.blue());
}

}  // namespace quorb
