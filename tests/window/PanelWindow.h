#pragma once

#include <QClipboard>
#include <QComboBox>
#include <QDialog>
#include <QGuiApplication>
#include <QLineEdit>
#include <QSettings>
#include <sstream>

#include "DrivenWindow.h"
#include "VirtualDisplay.h"

namespace quorb {

/// The real window with what a user does to its panels; nothing was stored before.
class PanelWindow : public DrivenWindow {
 protected:
  PanelWindow() { ForgetSettings(); }
  ~PanelWindow() override { ForgetSettings(); }

  /// A window of the program beside the main one; null when it is not there.
  template <typename T>
  T* WindowOf() const {
    for (QDialog* dialog : window->findChildren<QDialog*>()) {
      if (T* const found = dynamic_cast<T*>(dialog); found != nullptr) return found;
    }
    return nullptr;
  }

  void OpenPanel() const {
    ClickTool("ToolBoptions", 9);
    ASSERT_TRUE(Find("Options").isVisible());
  }
  void ExtendPanel() const {
    ClickOnCheck("Check2");
    ASSERT_TRUE(Find("Text5(0)").isVisible());
  }

  /// A check box reacts where its box is.
  void ClickOnCheck(const QString& name) const {
    const QWidget& box = Find(name);
    QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {},
                      box.mapTo(window.get(), QPoint(8, box.height() / 2)));
  }

  /// Types over what stands in a field; a long text is pasted.
  void TypeInto(const QString& name, const QString& text) const {
    constexpr int kLongestTyped = 100;
    ClickOn(Find(name));
    QTest::keyClick(window->windowHandle(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(window->windowHandle(), Qt::Key_Delete);
    if (text.size() > kLongestTyped) {
      QGuiApplication::clipboard()->setText(text);
      QTest::keyClick(window->windowHandle(), Qt::Key_V, Qt::ControlModifier);
      return;
    }
    for (const QChar letter : text)
      QTest::keyClick(window->windowHandle(), letter.toLatin1());
  }
  std::string TextOf(const QString& name) const { return Find<QLineEdit>(name).text().toStdString(); }

  /// Runs the tool that acts as a user at the display's mouse and keyboard, while the window goes on.
  static void ActAsUser(const std::string& words) {
    std::vector<std::string> command = {"xdotool"};
    std::stringstream stream(words);
    for (std::string word; stream >> word;)
      command.push_back(word);
    const Background user(command, {});
    EXPECT_TRUE(QTest::qWaitFor([&user] { return !user.Runs(); }, 20000));
    QTest::qWait(100);
  }
  static std::string PlaceText(const QWidget& widget, const QPoint& point) {
    const QPoint place = widget.mapToGlobal(point);
    return " " + std::to_string(place.x()) + " " + std::to_string(place.y()) + " ";
  }
  static void MovePointerTo(const QWidget& widget, const QPoint& point) {
    ActAsUser("mousemove" + PlaceText(widget, point));
  }

 private:
  static void ForgetSettings() {
    QSettings store("QuorbExcelPro", "QuorbExcelProSettings");
    store.clear();
    store.sync();
  }
};

}  // namespace quorb
