#include "PointerShapes.h"

#include <gtest/gtest.h>

#include <QPixmap>

#include "TemporaryDirectory.h"

namespace quorb {
namespace {

TEST(PointerShapes, EveryMouseModeButSelectHasAPointerOfItsOwnKind) {
  for (const int id : {200, 201, 202, 203, 204, 205, 206, 207, 210, 211, 212})
    EXPECT_NE(PointerShape(id, "").shape(), Qt::ArrowCursor) << id;
}

TEST(PointerShapes, TheDesktopsOwnAreThoseOfTheirNumbers) {
  EXPECT_EQ(PointerShape(0, "").shape(), Qt::ArrowCursor);
  EXPECT_EQ(PointerShape(2, "").shape(), Qt::CrossCursor);
  EXPECT_EQ(PointerShape(11, "").shape(), Qt::WaitCursor);
  EXPECT_EQ(PointerShape(15, "").shape(), Qt::SizeAllCursor);
}

TEST(PointerShapes, AnyOtherNumberIsAnArrow) {
  for (const int id : {-1, 16, 98, 199, 208, 209, 213, 100000})
    EXPECT_EQ(PointerShape(id, "").shape(), Qt::ArrowCursor) << id;
}

TEST(PointerShapes, APictureIsShownAndAMissingOneIsAnArrow) {
  const TemporaryDirectory directory;
  const QString path = QString::fromStdString(directory.File("pointer.png"));
  QPixmap picture(10, 12);
  picture.fill(Qt::red);
  ASSERT_TRUE(picture.save(path));
  const QCursor pointer = PointerShape(99, path.toStdString());
  EXPECT_EQ(pointer.shape(), Qt::BitmapCursor);
  EXPECT_EQ(pointer.pixmap().size(), QSize(10, 12));
  EXPECT_EQ(PointerShape(99, directory.File("none.png")).shape(), Qt::ArrowCursor);
}

}  // namespace
}  // namespace quorb
