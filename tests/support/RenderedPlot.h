#pragma once

#include <cmath>
#include <cstdio>
#include <initializer_list>
#include <string>

#include "PictureCompare.h"
#include "ProgramRun.h"

namespace quorb {

/// Share of the pixels that may differ from a stored picture: fonts and drivers vary a little.
constexpr double kRenderedTolerance = 0.004;

/// Cells of a row with TABs between them; ten decimals.
inline std::string Cells(std::initializer_list<double> numbers) {
  std::string row;
  for (const double number : numbers) {
    char text[64];
    std::snprintf(text, sizeof text, "%.10f", number);
    row += (row.empty() ? "" : "\t") + std::string(text);
  }
  return row;
}

/// A quarter of a circle over the equator in 61 rows a minute apart, in kilometres, that ends in the azimuth
/// of 60 degrees on `day`.
inline std::string QuarterCircle(double radius, double day) {
  std::string rows;
  for (int i = 0; i <= 60; ++i) {
    const double azimuth = (2 * i - 60) * std::acos(-1.0) / 180;
    rows +=
        Cells({radius * std::cos(azimuth), radius * std::sin(azimuth), 0, day + (i - 60) / 1440.0}) + "\r\n";
  }
  return rows;
}

/// Data files drawn by the program that needs no window, in 1280 x 800 pixels.
class RenderedPlot : public testing::Test {
 protected:
  void Write(const std::string& formula, const std::string& rows) const {
    run_.Write("plot.qbv", DataFileText(formula, rows));
  }

  /// The picture of the file that was written last.
  PixelImage Picture(const std::string& arguments) const {
    const ProgramOutcome outcome =
        run_.Run(QUORB_RENDER_PROGRAM, "plot.qbv -o out.png --set CubicView=0 " + arguments);
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    EXPECT_EQ(outcome.err, "");
    PixelImage image;
    std::string error;
    EXPECT_TRUE(ReadPng(run_.File("out.png"), image, error)) << error;
    return image;
  }

  void ExpectPicture(const std::string& name, const std::string& arguments) const {
    EXPECT_TRUE(
        ComparePictures(Picture(arguments), QUORB_STORED_PICTURES "/" + name + ".png", kRenderedTolerance));
  }

  ProgramRun run_;
};

}  // namespace quorb
