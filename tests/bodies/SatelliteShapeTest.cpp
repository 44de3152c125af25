#include "SatelliteShape.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "UserFlag.h"

namespace quorb {
namespace {

std::vector<double> ChosenNumbers(int index) {
  EXPECT_TRUE(ChooseShape(index));
  EXPECT_EQ(USERFLAG.SatelliteShape, index);
  return {ShapeZLength, ShapeArrays, ThrustAxisX, ThrustAxisY, ThrustAxisZ};
}

TEST(SatelliteShapeTest, EachShapeSetsItsFiveNumbers) {
  EXPECT_EQ(ChosenNumbers(1), (std::vector<double>{1.5, 1, -1, 0, 0}));
  EXPECT_EQ(ChosenNumbers(2), (std::vector<double>{10, 0, 0, 0, -1}));
  EXPECT_EQ(ChosenNumbers(3), (std::vector<double>{1, 0, 0, 0, 1}));
  EXPECT_EQ(ChosenNumbers(4), (std::vector<double>{3, 0, 0, 0, 1}));
  EXPECT_EQ(ChosenNumbers(5), (std::vector<double>{1, 2, 0, 0, 1}));
  EXPECT_EQ(ChosenNumbers(6), (std::vector<double>{3, 1, 0, 0, 1}));
  EXPECT_EQ(ChosenNumbers(0), (std::vector<double>{2, 2, 0, 0, 1}));
}

TEST(SatelliteShapeTest, AnIndexOutsideTheTableChangesNothing) {
  ChooseShape(4);
  for (const int index : {-1, 7}) {
    EXPECT_FALSE(ChooseShape(index));
    EXPECT_EQ(USERFLAG.SatelliteShape, 4);
    EXPECT_EQ(ShapeZLength, 3);
  }
  ChooseShape(0);
}

TEST(SatelliteShapeTest, AShapeIsFoundByItsName) {
  const std::vector<std::string> names = {"GEO satcom", "LEO Spot", "Launcher",  "CubeSat",
                                          "CubeSat3U",  "Smart1",   "CubeSat3U5"};
  for (std::size_t i = 0; i < names.size(); ++i)
    EXPECT_EQ(ShapeIndex(names[i]), static_cast<int>(i));
  EXPECT_EQ(ShapeIndex("cubesat"), -1);
  EXPECT_EQ(ShapeIndex(""), -1);
}

}  // namespace
}  // namespace quorb
