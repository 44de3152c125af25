#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <iostream>

#include "PictureCompare.h"
#include "ProgramRun.h"

namespace quorb {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

/// Real ephemerides on their whole road: converted, loaded into the arrays, drawn.
class RealEphemeris : public testing::Test {
 protected:
  void SetUp() override {
    if (std::filesystem::is_directory(QUORB_SHARED_DATA)) return;
    ASSERT_EQ(std::getenv("CI"), nullptr) << "the ephemerides are missing in " QUORB_SHARED_DATA;
    std::cout << "SKIPPED: there are no ephemerides in " QUORB_SHARED_DATA << '\n';
    GTEST_SKIP();
  }

  void Convert(const std::string& name) const {
    const ProgramOutcome outcome =
        run_.Run(QUORB_CONVERT_PROGRAM, "'" QUORB_SHARED_DATA "/" + name + "' -o plot.qbv");
    ASSERT_EQ(outcome.status, 0) << outcome.err;
  }

  std::string Rows(const std::string& wanted) const {
    return run_.Run(QUORB_INSPECT_PROGRAM, "plot.qbv --rows " + wanted).out;
  }

  // Share of the picture's pixels in the colour of the line, green over all else.
  double ShareOfLine() const {
    const ProgramOutcome outcome = run_.Run(QUORB_RENDER_PROGRAM, "plot.qbv -o plot.png --size 640x400");
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    PixelImage image;
    std::string error;
    EXPECT_TRUE(ReadPng(run_.File("plot.png"), image, error)) << error;
    std::size_t green = 0;
    for (std::size_t i = 0; i < image.rgb.size(); i += 3) {
      if (image.rgb[i + 1] > 120 && image.rgb[i] < 60) ++green;
    }
    return 3.0 * static_cast<double>(green) / static_cast<double>(image.rgb.size());
  }

  ProgramRun run_;
};

// 2025 day 57 is 26 February, serial day 45714; 236.607189722756 km by 0.01 is 2.3660718972 with ten
// decimals.
TEST_F(RealEphemeris, TheSpaceStationGoesFromTheMessageToThePicture) {
  Convert("iss_2025_02_26.oem.xml");
  EXPECT_THAT(run_.Run(QUORB_INSPECT_PROGRAM, "plot.qbv").out,
              HasSubstr("\nFactorScale\t0.01\nLastPoint\t5412\n"));
  EXPECT_THAT(Rows("dataXYZT:0-0"), StartsWith("45714.5\t2.36607189722"));
  const double share = ShareOfLine();
  EXPECT_GT(share, 0.05);
  EXPECT_LT(share, 0.5);
}

// 2022 November 16 is serial day 44881, 9 h 27 min 8.381 s are 34,028.381 s, 0.3938470023 of it.
TEST_F(RealEphemeris, TheFlightToTheMoonGoesFromTheTableToThePicture) {
  Convert("artemis1_orion_states.txt");
  EXPECT_THAT(run_.Run(QUORB_INSPECT_PROGRAM, "plot.qbv").out, HasSubstr("\nLastPoint\t9126\n"));
  EXPECT_THAT(Rows("dataXYZT:0-0"), StartsWith("44881.39384700"));
  EXPECT_THAT(Rows("dataXYZT:0-0"), HasSubstr("\t-317.952243215"));
  const double share = ShareOfLine();
  EXPECT_GT(share, 0.001);
  EXPECT_LT(share, 0.1);
}

}  // namespace
}  // namespace quorb
