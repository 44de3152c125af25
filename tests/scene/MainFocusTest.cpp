#include "ScenePlot.h"

namespace quorb {
namespace {

double RadiusOf(double body, double moonFlag) {
  double radius = -1;
  ClassGl::MainFocus(radius, moonFlag, body);
  return radius;
}

TEST(MainFocus, GivesTheRadiusOfTheCentralBody) {
  EXPECT_EQ(RadiusOf(1, 0), 695000);
  EXPECT_EQ(RadiusOf(2, 0), 2439.7);
  EXPECT_EQ(RadiusOf(3, 0), 6051.8);
  EXPECT_EQ(RadiusOf(4, 0), 6378);
  EXPECT_EQ(RadiusOf(5, 0), 3397.2);
  EXPECT_EQ(RadiusOf(6, 0), 71492);
  EXPECT_EQ(RadiusOf(11, 0), 1737.4);
}

TEST(MainFocus, AnyOtherBodyIsTheEarth) {
  for (const double other : {0.0, 7.0, 10.0, 12.0, -1.0, 1.5})
    EXPECT_EQ(RadiusOf(other, 0), 6378) << other;
}

TEST(MainFocus, TheMoonFlagIsAboveAllBodies) {
  EXPECT_EQ(RadiusOf(1, 1), 1738);
  EXPECT_EQ(RadiusOf(0, 1), 1738);
  EXPECT_EQ(RadiusOf(11, 1), 1738);
  EXPECT_EQ(RadiusOf(1, 2), 695000) << "only 1 counts";
}

}  // namespace
}  // namespace quorb
