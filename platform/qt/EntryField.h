#pragma once

#include <QLineEdit>

namespace quorb {

/// A text field that is as wide as so many digits and no wider.
class EntryField : public QLineEdit {
 public:
  EntryField(int digits, QWidget* parent) : QLineEdit(parent), digits_(digits) {
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  }

  QSize sizeHint() const override {
    const QSize wide = QLineEdit::sizeHint();
    // What the toolkit leaves around a text of 17 letters stays around the digits.
    const int around = wide.width() - 17 * fontMetrics().horizontalAdvance('x');
    return {around + digits_ * fontMetrics().horizontalAdvance('0'), wide.height()};
  }
  QSize minimumSizeHint() const override { return sizeHint(); }

 private:
  int digits_;
};

}  // namespace quorb
