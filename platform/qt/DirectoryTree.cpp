#include "DirectoryTree.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QSignalBlocker>
#include <QStyle>
#include <algorithm>

#include "ControlBinding.h"
#include "FileNames.h"

namespace quorb {

namespace {

constexpr int kIndentation = 14;
constexpr int kRankRole = Qt::UserRole;

/// The last name of a directory; the whole of a root.
QString LastName(const std::string& directory) {
  const std::size_t mark = directory.find_last_of("/\\");
  const bool isRoot = mark == directory.npos || mark + 1 == directory.size();
  return QString::fromStdString(isRoot ? directory : directory.substr(mark + 1));
}

}  // namespace

DirectoryTree::DirectoryTree(DirectoryBox& control, QWidget* parent)
    : QTreeWidget(parent), control_(control) {
  TieWidget(*this, control);
  header()->hide();
  setRootIsDecorated(false);
  setItemsExpandable(false);
  setIndentation(kIndentation);
  control_.refresh = [this] { Show(); };
  control_.takeFocus = [this] { setFocus(); };
  // Going to a directory fills the tree anew, which it must not see inside its own signal.
  connect(
      this, &QTreeWidget::itemClicked, this, [this] { GoTo(currentItem()); }, Qt::QueuedConnection);
  Show();
}

void DirectoryTree::keyPressEvent(QKeyEvent* event) {
  const int key = event->key();
  if (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space) {
    GoTo(currentItem());
  } else {
    QTreeWidget::keyPressEvent(event);
  }
}

// The first click has filled the tree anew: another directory may stand under the pointer by now.
void DirectoryTree::mouseDoubleClickEvent(QMouseEvent* /*event*/) {}

void DirectoryTree::GoTo(const QTreeWidgetItem* item) {
  if (item != nullptr) control_.selected = item->data(0, kRankRole).toInt();
}

void DirectoryTree::Show() {
  const QSignalBlocker block(this);
  setEnabled(control_.enabled);
  clear();
  const QIcon icon = style()->standardIcon(QStyle::SP_DirIcon);
  std::vector<QTreeWidgetItem*> way;  // the latest item of each depth
  const std::vector<std::string>& directories = control_.items;
  for (std::size_t rank = 0; rank < directories.size(); ++rank) {
    auto* item = new QTreeWidgetItem({LastName(directories[rank])});
    item->setIcon(0, icon);
    item->setData(0, kRankRole, static_cast<int>(rank));
    const std::size_t depth = std::min(WayDown(directories[rank]).size() - 1, way.size());
    way.resize(depth);
    if (depth == 0) {
      addTopLevelItem(item);
    } else {
      way.back()->addChild(item);
    }
    way.push_back(item);
    item->setExpanded(true);
    if (static_cast<int>(rank) == control_.selected) setCurrentItem(item);
  }
  expandAll();
}

}  // namespace quorb
