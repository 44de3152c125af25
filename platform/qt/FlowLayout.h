#pragma once

#include <QLayout>
#include <vector>

namespace quorb {

/// Items side by side, in as many rows as the width asks for. Hidden items and those that hold nothing
/// visible take no place.
class FlowLayout : public QLayout {
 public:
  FlowLayout(int columnSpacing, int rowSpacing);
  ~FlowLayout() override;

  void addItem(QLayoutItem* item) override;
  int count() const override;
  QLayoutItem* itemAt(int index) const override;
  QLayoutItem* takeAt(int index) override;
  Qt::Orientations expandingDirections() const override { return {}; }
  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int width) const override;
  QSize sizeHint() const override;
  QSize minimumSize() const override;
  void setGeometry(const QRect& rect) override;

 private:
  /// Height of the rows in that rectangle; the items are moved there when `moves` is set.
  int Arrange(const QRect& rect, bool moves) const;

  std::vector<QLayoutItem*> items_;
  int columnSpacing_, rowSpacing_;
};

}  // namespace quorb
