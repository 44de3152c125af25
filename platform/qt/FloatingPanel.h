#pragma once

#include <QFrame>
#include <QPoint>

#include "Controls.h"
#include "WindowControls.h"

namespace quorb {

/// A panel that floats over the window. It stands where its control tells, is dragged by its background, and
/// tells of the pointer as it moves over it or over anything in it. It is never higher than the window; one
/// whose control follows no drag always stands in the window with all four edges.
class FloatingPanel : public QFrame {
 public:
  FloatingPanel(quorb::Panel& control, QWidget& canvas);

  /// To be called when everything stands in the panel: from now on it tells of the pointer.
  void WatchPointer();
  /// A button that runs its pointer routine when the pointer has come over it by moving; not when the button
  /// came under a pointer that rests.
  void SetHoverButton(QWidget& widget, Button& button);
  /// The widget that takes the keyboard when the panel opens; the panel itself when none was set.
  void SetFirstFocus(QWidget& widget) { firstFocus_ = &widget; }

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Show();
  void Place();
  /// A panel that comes or grows is moved up as far as it would reach out of the window.
  void KeepInside();
  void GiveFocusBack();
  void PointerMoved(const QObject& over, const QPoint& place);
  void NotePointerAtRest();

  quorb::Panel& control_;
  QWidget* firstFocus_ = this;
  QWidget* hoverWidget_ = nullptr;
  Button* hoverButton_ = nullptr;
  QPoint pointer_;                   ///< where the pointer was seen last, on the screen
  bool restsOnHoverButton_ = false;  ///< the hover button came under it
};

}  // namespace quorb
