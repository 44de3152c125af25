#include "FlowLayout.h"

#include <QWidget>
#include <algorithm>

namespace quorb {

namespace {

bool HoldsNothing(const QLayoutItem& item) {
  if (item.isEmpty()) return true;
  auto& shown = const_cast<QLayoutItem&>(item);
  return shown.widget() != nullptr && shown.widget()->layout() != nullptr &&
         shown.widget()->layout()->isEmpty();
}

}  // namespace

FlowLayout::FlowLayout(int columnSpacing, int rowSpacing)
    : columnSpacing_(columnSpacing), rowSpacing_(rowSpacing) {}

FlowLayout::~FlowLayout() {
  for (QLayoutItem* item : items_)
    delete item;
}

void FlowLayout::addItem(QLayoutItem* item) {
  items_.push_back(item);
}

int FlowLayout::count() const {
  return static_cast<int>(items_.size());
}

QLayoutItem* FlowLayout::itemAt(int index) const {
  return index >= 0 && index < count() ? items_[static_cast<std::size_t>(index)] : nullptr;
}

QLayoutItem* FlowLayout::takeAt(int index) {
  QLayoutItem* const item = itemAt(index);
  if (item != nullptr) items_.erase(items_.begin() + index);
  return item;
}

int FlowLayout::heightForWidth(int width) const {
  return Arrange({0, 0, width, 0}, false);
}

QSize FlowLayout::sizeHint() const {
  return minimumSize();
}

QSize FlowLayout::minimumSize() const {
  QSize size;
  for (const QLayoutItem* item : items_) {
    if (!HoldsNothing(*item)) size = size.expandedTo(item->minimumSize());
  }
  return size;
}

void FlowLayout::setGeometry(const QRect& rect) {
  QLayout::setGeometry(rect);
  Arrange(rect, true);
}

int FlowLayout::Arrange(const QRect& rect, bool moves) const {
  int x = rect.x(), y = rect.y(), rowHeight = 0;
  for (QLayoutItem* item : items_) {
    if (HoldsNothing(*item)) {
      // Where it stood before it would catch the clicks on what stands there now.
      if (moves) item->setGeometry({0, 0, 0, 0});
      continue;
    }
    const QSize size = item->sizeHint();
    if (x > rect.x() && x + size.width() > rect.x() + rect.width()) {
      x = rect.x();
      y += rowHeight + rowSpacing_;
      rowHeight = 0;
    }
    if (moves) item->setGeometry({{x, y}, size});
    x += size.width() + columnSpacing_;
    rowHeight = std::max(rowHeight, size.height());
  }
  return y + rowHeight - rect.y();
}

}  // namespace quorb
