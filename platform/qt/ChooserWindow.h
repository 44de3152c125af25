#pragma once

#include <QDialog>

class QListWidget;

namespace quorb {

/// The file chooser as the toolkit shows it.
class ChooserWindow : public QDialog {
 public:
  explicit ChooserWindow(QWidget* parent);

 protected:
  void showEvent(QShowEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void reject() override;

 private:
  QListWidget* files_ = nullptr;
};

}  // namespace quorb
