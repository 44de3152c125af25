#pragma once

#include <QTreeWidget>

#include "ListControls.h"

namespace quorb {

/// The way down to a directory and the directories in it, as a tree. A click, Enter or the space bar goes to
/// the one that is marked; the arrow keys only move the mark. A double click is one click.
class DirectoryTree : public QTreeWidget {
 public:
  DirectoryTree(DirectoryBox& control, QWidget* parent);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;

 private:
  void Show();
  void GoTo(const QTreeWidgetItem* item);

  DirectoryBox& control_;
};

}  // namespace quorb
