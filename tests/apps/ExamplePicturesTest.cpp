#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <sstream>

#include "PictureCompare.h"
#include "ProgramRun.h"

namespace quorb {
namespace {

using testing::HasSubstr;

// Share of the pixels that may differ from a stored picture: fonts and drivers vary a little.
constexpr double kTolerance = 0.004;

constexpr const char* kAside = "--view isonew:1 --set LengthAxisFactor=1";

struct Example {
  const char* name;
  std::vector<const char*> told;  // lines of what the loader makes of it
  const char* view = kAside;
};

const std::vector<Example>& Examples() {
  static const std::vector<Example> examples = {
      {"metres-seconds", {"Title\tLong orbit over the north", "InputInKm\tFalse", "LastPoint\t180"}},
      {"km", {"Title\tLong orbit over the north", "InputInKm\tTrue", "LastPoint\t180"}},
      {"kmday", {"Title\tLong orbit over the north", "InputInKm\tTrue", "LastPoint\t180"}},
      {"penup",
       {"Title\tConstellation of 24", "PenUpMode\t1", "NbQuater\t144", "TimeMin\t1", "TimeMax\t3"},
       "--view isonew:1 --set LengthAxisFactor=1 --set ThicknessLinePlot=2"},
      {"penuplabel",
       {"Title\tNearest stars", "PenUpLabelMode\t1", "ISOmode\t0", "TimeMax\t11.91"},
       "--view from:-90,89.9 --set ThicknessLinePlot=3 --set ColourAxisLabels=255,255,255"},
      {"column", {"ColumnMode\t1", "LastPoint\t160"}},
      {"yzx", {"Title\tCoil that stands on Z", "LastPoint\t240"}},
      {"ned",
       {"NedInput\t1", "ISOmode\t1", "FactorScale\t1.0001"},
       "--view from:-100,30 --zoom 1.5 --set LengthAxisFactor=1"},
      {"valz", {"ValColour\t1", "NbValZ\t241", "ValZMin\t0", "ValZMax\t1", "FlagOptionToPlot\t1"}},
      {"moon", {"Title\tOrbit over the poles of the Moon", "MoonFocus\t1", "FocusBody\t4"}},
      {"sun", {"Title\tFrom the Earth to Mars", "MoonFocus\t0", "FocusBody\t1"}},
      {"mercury", {"Title\tOrbit over the poles of Mercury", "FocusBody\t2"}},
      {"venus", {"Title\tOrbit over the poles of Venus", "FocusBody\t3"}},
      {"mars", {"Title\tOrbits over the poles of Mars", "FocusBody\t5"}},
      {"jupiter", {"Title\tOrbits of Io, Europa, Ganymede and Callisto", "FocusBody\t6"}},
      {"xyzw", {"QuaterScalarLast\t1", "NbQuater\t181"}},
      {"em-system", {"Title\tFlight to the Moon", "EMSystem\t1", "EMView\t1", "MoonFocus\t0"}},
  };
  return examples;
}

class ExamplePictures : public testing::Test {
 protected:
  void ExpectPicture(const std::string& file, const std::string& name, const std::string& view) const {
    const ProgramOutcome outcome =
        run_.Run(QUORB_RENDER_PROGRAM, "'" + file + "' -o out.png --size 640x400 --set CubicView=0 " + view);
    ASSERT_EQ(outcome.status, 0) << outcome.err;
    EXPECT_EQ(outcome.err, "");
    PixelImage image;
    std::string error;
    ASSERT_TRUE(ReadPng(run_.File("out.png"), image, error)) << error;
    EXPECT_TRUE(ComparePictures(image, QUORB_STORED_PICTURES "/example-" + name + ".png", kTolerance));
  }

  std::string Inspect(const std::string& name, const std::string& options = "") const {
    return run_.Run(QUORB_INSPECT_PROGRAM, "'" QUORB_EXAMPLES "/" + name + ".qbv' " + options).out;
  }

  // The numbers of the rows of an array, a row after the other.
  std::vector<double> Numbers(const std::string& name, const std::string& rows) const {
    std::istringstream text(Inspect(name, "--rows " + rows));
    std::vector<double> numbers;
    for (double number = 0; text >> number;)
      numbers.push_back(number);
    return numbers;
  }

  ProgramRun run_;
};

TEST_F(ExamplePictures, EachExampleHasItsPicture) {
  for (const Example& example : Examples()) {
    SCOPED_TRACE(example.name);
    ExpectPicture(QUORB_EXAMPLES "/" + std::string(example.name) + ".qbv", example.name, example.view);
  }
}

TEST_F(ExamplePictures, TheDemonstrationHasItsPicture) {
  ExpectPicture(QUORB_DEMONSTRATION, "demonstration", kAside);
}

TEST_F(ExamplePictures, TheLoaderMakesOfEachWhatItsKeywordsSay) {
  for (const Example& example : Examples()) {
    const std::string told = Inspect(example.name);
    for (const char* line : example.told)
      EXPECT_THAT("\n" + told, HasSubstr("\n" + std::string(line) + "\n")) << example.name;
  }
}

TEST_F(ExamplePictures, TheThreeFilesOfUnitsAreOnePlot) {
  const std::vector<double> inDays = Numbers("kmday", "dataXYZT");
  ASSERT_EQ(inDays.size(), 181U * 5);
  for (const char* name : {"metres-seconds", "km"}) {
    const std::vector<double> other = Numbers(name, "dataXYZT");
    ASSERT_EQ(other.size(), inDays.size()) << name;
    for (std::size_t i = 0; i < inDays.size(); ++i)
      ASSERT_NEAR(other[i], inDays[i], 1e-9) << name << ' ' << i;
  }
}

// In the file the coil runs along Y from 0 to 18,000 km; by 0.01 that is 180.
TEST_F(ExamplePictures, TheCoilStandsOnZ) {
  const std::vector<double> first = Numbers("yzx", "dataXYZT:0-0");
  EXPECT_NEAR(first[1], 90, 1e-9);
  EXPECT_NEAR(first[2], 0, 1e-9);
  EXPECT_NEAR(first[3], 0, 1e-9);
  EXPECT_NEAR(Numbers("yzx", "dataXYZT:240-240")[3], 180, 1e-9);
}

// The launch begins on the equator's bulge at 5.24 degrees north and ends 1,200 km higher.
TEST_F(ExamplePictures, TheLaunchRisesFromTheGroundToItsOrbit) {
  const auto radius = [this](const std::string& rows) {
    const std::vector<double> row = Numbers("ned", rows);
    return std::hypot(row[1], row[2], row[3]);
  };
  EXPECT_NEAR(radius("dataXYZT:0-0"), 6377.96, 0.05);
  EXPECT_NEAR(radius("dataXYZT:240-240"), 6377.96 + 1200, 3);
}

// The quaternion of each row, now w x y z, turns Z of the body toward the Earth.
TEST_F(ExamplePictures, TheSatelliteLooksDown) {
  const std::vector<double> points = Numbers("xyzw", "dataXYZT");
  const std::vector<double> attitude = Numbers("xyzw", "dataQuater");
  ASSERT_EQ(points.size(), attitude.size());
  for (std::size_t i = 0; i < points.size(); i += 5) {
    const double w = attitude[i + 1], x = attitude[i + 2], y = attitude[i + 3], z = attitude[i + 4];
    const double image[] = {2 * (x * z + w * y), 2 * (y * z - w * x), 1 - 2 * (x * x + y * y)};
    const double length = std::hypot(points[i + 1], points[i + 2], points[i + 3]);
    for (std::size_t axis = 0; axis < 3; ++axis)
      ASSERT_NEAR(image[axis], -points[i + 1 + axis] / length, 1e-8) << i;
  }
}

}  // namespace
}  // namespace quorb
