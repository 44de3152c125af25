#pragma once

#include <QDialog>

namespace quorb {

/// The movie window as the toolkit shows it. It stays open beside the plot.
class MovieWindow : public QDialog {
 public:
  explicit MovieWindow(QWidget* parent);

 protected:
  bool event(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void reject() override;
};

}  // namespace quorb
