#pragma once

#include <QComboBox>
#include <functional>

namespace quorb {

/// An editable list in which a text is entered by Enter, by a double click, or by leaving it with another
/// text than the one entered last. Another window that comes in front, the list that drops down and a key of
/// the view enter nothing: the text waits for the next time that the box is left, unless the program itself
/// gives it the focus. Purple while it has the focus, pale without.
class SpecificationBox : public QComboBox {
 public:
  explicit SpecificationBox(QWidget* parent);

  /// The text as it stands is entered.
  std::function<void()> entered;
  /// A key goes down, with the number of the key; Enter is among them.
  std::function<void(int key)> keyPressed;
  std::function<void()> gotFocus;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Enter();
  void ShowColours(bool focused);

  QString textEntered_;  ///< the last one
};

}  // namespace quorb
