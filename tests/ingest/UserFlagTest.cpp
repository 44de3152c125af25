#include "UserFlag.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstring>

namespace quorb {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

double NumberOf(UserFlagRecord& record, std::string_view name) {
  const auto numbers = FieldNumbers(record, name);
  return numbers.size() == 1 ? *numbers[0] : -999;
}

TEST(UserFlag, FieldsStandInTheirOrder) {
  EXPECT_THAT(FieldNames(),
              ElementsAre("NoPlotEarth", "NoColourAxisX", "LargeCharacters", "NoPlotAxis", "NoLogoLabel",
                          "NoOriginLabel", "NoTimeMoving", "ThicknessLinePlot", "LengthAxisFactor",
                          "ThicknessLineAxis", "PositionFactor", "ColourAxisLabels", "ColourAxis",
                          "ColourPlotNominal", "ColourPlotEvents", "ColourSphere", "ColourBackground",
                          "MoonAmplification", "InteractiveExcel", "SatelliteSize", "ShowSatellite",
                          "SolarPanelToSun", "LogoScale", "MovieFrameCount", "MovieFrameTime", "MovieFrames",
                          "MovieNextTime", "MovieArmed", "PendingIsoRequest", "UpdateAsked", "NedInput",
                          "LocalCentreIndex", "SatelliteModelReady", "TimeInData", "NoSunRay", "EMView",
                          "SatelliteShape", "MovieRealTime", "MovieDataTime", "CubicView", "InMetres",
                          "SynchroExcelComplete"));
}

TEST(UserFlag, NamesFollowTheOrderOfTheRecordInMemory) {
  UserFlagRecord record;
  const double* expected = &record.NoPlotEarth;
  for (const std::string_view name : FieldNames()) {
    const auto numbers = FieldNumbers(record, name);
    ASSERT_FALSE(numbers.empty()) << name;
    for (const double* number : numbers)
      EXPECT_EQ(number, expected++) << name;
  }
  EXPECT_EQ(expected - &record.NoPlotEarth, 54);
}

TEST(UserFlag, AFreshRecordHoldsTheFactoryValues) {
  UserFlagRecord record;
  const auto colour = [&record](std::string_view name) {
    std::vector<double> values;
    for (const double* number : FieldNumbers(record, name))
      values.push_back(*number);
    return values;
  };
  EXPECT_THAT(colour("ColourAxisLabels"), ElementsAre(40, 80, 120));
  EXPECT_THAT(colour("ColourAxis"), ElementsAre(128, 128, 128));
  EXPECT_THAT(colour("ColourPlotNominal"), ElementsAre(0, 255, 0));
  EXPECT_THAT(colour("ColourPlotEvents"), ElementsAre(255, 0, 0));
  EXPECT_THAT(colour("ColourSphere"), ElementsAre(50, 100, 150));
  EXPECT_THAT(colour("ColourBackground"), ElementsAre(10, 20, 70));
  EXPECT_EQ(NumberOf(record, "MoonAmplification"), 10);
  for (const char* one : {"ThicknessLinePlot", "LengthAxisFactor", "ThicknessLineAxis", "PositionFactor"})
    EXPECT_EQ(NumberOf(record, one), 1) << one;
  for (const char* none : {"NoPlotEarth", "InteractiveExcel", "SatelliteSize", "ShowSatellite", "LogoScale",
                           "UpdateAsked", "TimeInData", "CubicView", "SynchroExcelComplete"})
    EXPECT_EQ(NumberOf(record, none), 0) << none;
}

TEST(UserFlag, AFieldIsWrittenByItsName) {
  UserFlagRecord record;
  *FieldNumbers(record, "LogoScale")[0] = 0.5;
  *FieldNumbers(record, "ColourSphere")[2] = 7;
  EXPECT_EQ(record.LogoScale, 0.5);
  EXPECT_EQ(record.ColourSphere.blue, 7);
}

TEST(UserFlag, AnUnknownNameHasNoNumbers) {
  UserFlagRecord record;
  EXPECT_THAT(FieldNumbers(record, "logoscale"), IsEmpty());
  EXPECT_THAT(FieldNumbers(record, ""), IsEmpty());
}

TEST(UserFlag, InstancesAreCopiedWhole) {
  UserFlagRecord record;
  for (const std::string_view name : FieldNames()) {
    for (double* number : FieldNumbers(record, name))
      *number = 3.25;
  }
  const UserFlagRecord copy = record;
  EXPECT_EQ(std::memcmp(&copy, &record, sizeof record), 0);
}

}  // namespace
}  // namespace quorb
