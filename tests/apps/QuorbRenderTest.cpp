#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "PictureCompare.h"
#include "ProgramRun.h"

namespace quorb {
namespace {

using testing::HasSubstr;

// Share of the pixels that may differ from a stored picture: fonts and drivers vary a little.
constexpr double kTolerance = 0.004;

class QuorbRender : public testing::Test {
 protected:
  ProgramOutcome Run(const std::string& arguments) const { return run_.Run(QUORB_RENDER_PROGRAM, arguments); }

  // Draws the file's text without the Earth, which would be far larger than the small plots here, and
  // compares the picture with the stored one of this name.
  void ExpectPicture(const std::string& name, const std::string& text,
                     const std::string& arguments = "") const {
    run_.Write("plot.qbv", text);
    const bool isAsWindowBegins = arguments.find("--view") == arguments.npos;
    const std::string cube = isAsWindowBegins ? "" : "--set CubicView=0 ";
    const ProgramOutcome outcome =
        Run("plot.qbv -o out.png --size 640x400 --set NoPlotEarth=1 " + cube + arguments);
    ASSERT_EQ(outcome.status, 0) << outcome.err;
    PixelImage image;
    std::string error;
    ASSERT_TRUE(ReadPng(run_.File("out.png"), image, error)) << error;
    EXPECT_TRUE(ComparePictures(image, QUORB_STORED_PICTURES "/" + name + ".png", kTolerance));
  }

  ProgramRun run_;
};

// Nine points of a square spiral, times 1 to 9 days.
std::string Spiral(const std::string& formula, const std::string& tail = "") {
  const char* const points[] = {"0\t0\t0",    "10\t0\t0",  "10\t10\t0",  "-10\t10\t0", "-10\t-10\t0",
                                "20\t-10\t0", "20\t20\t0", "-20\t20\t0", "-20\t-20\t0"};
  std::string rows;
  for (int i = 0; i < 9; ++i)
    rows += std::string(points[i]) + "\t" + std::to_string(i + 1) + tail + "\r\n";
  return DataFileText(formula, rows);
}

TEST_F(QuorbRender, HelpAndVersionAreAnsweredBeforeAnythingElse) {
  EXPECT_EQ(Run("--help").out,
            "Usage: quorb-render FILE -o OUT.png|OUT.bmp [--size WxH] [--row N] [--view VIEW]\n"
            "                   [--zoom FACTOR] [--centre ROW] [--set FIELD=VALUE]...\n"
            "                   [--frames N --every ROWS]\n"
            "\n"
            "Draws the picture that the viewer shows of a data file, without a window.\n"
            "\n"
            "  -o OUT             the picture to write, PNG or BMP by its ending\n"
            "  --size WxH         width and height in pixels (default 1280x800)\n"
            "  --row N            the last row that is drawn, from 0 (default: the last of all)\n"
            "  --view VIEW        isonew:STEP round the Z axis in eight steps, 0 to 7;\n"
            "                     isonewplus:STEP six corners of a cube, 0 to 5; proj:STEP the\n"
            "                     eight projections, 0 to 7; iso the plain isometric view\n"
            "                     (STEP is 0 when left out; without --view as the window does);\n"
            "                     from:AZIMUTH,ELEVATION with Z upward, from a direction in\n"
            "                     degrees, of X toward Y and then toward Z\n"
            "  --zoom FACTOR      shows everything this many times larger (default 1)\n"
            "  --centre ROW       puts the point of this row, from 0, into the middle\n"
            "  --set FIELD=VALUE  sets an option of the record USERFLAG, such as\n"
            "                     ThicknessLinePlot=3 or ColourBackground=255,255,255\n"
            "  --frames N         a series of N pictures, OUT1.png, OUT2.png and so on, from\n"
            "                     row 0 or the row of --row on; each shows ...\n"
            "  --every ROWS       ... this many rows more than the one before, up to the last\n"
            "  --help             show this text\n"
            "  --version          show the version\n"
            "\n"
            "Messages that the viewer would show go to standard error with their titles.\n"
            "Exit status: 0 done, 1 the file gave no rows or the picture could not be drawn or\n"
            "written, 2 wrong call.\n");
  EXPECT_EQ(Run("--version").out, "quorb-render 2.8.6\n");
}

TEST_F(QuorbRender, NominalPlot) {
  ExpectPicture("nominal", Spiral("=0.5+LEN(\"Spiral kmday\")+MAX(A2:C10)+MAX(D2:D10)"));
}

TEST_F(QuorbRender, EachAxisIsScaledByItselfWithoutAScale) {
  ExpectPicture("own-scales", Spiral("=LEN(\"Own scales kmday\")+MAX(A2:C10)+MAX(D2:D10)"));
}

TEST_F(QuorbRender, AnEmptyXLiftsThePen) {
  ExpectPicture(
      "pen-up",
      DataFileText("=0.5+LEN(\"Pen up kmday\")+MAX(A2:C7)",
                   "-20\t-20\t0\r\n-20\t20\t0\r\n\t0\t0\r\n20\t20\t0\r\n20\t-20\t0\r\n0\t-20\t0\r\n"));
}

TEST_F(QuorbRender, EventStretchesHaveTheirColour) {
  const std::string rows =
      "-20\t-20\t0\t1\t2.5\tS\r\n-20\t20\t0\t2\t3.5\tE\r\n0\t20\t0\t3\t\t\r\n20\t20\t0\t4\t\t\r\n20\t-"
      "20\t0\t5\t\t\r\n";
  ExpectPicture("events", DataFileText("=0.5+LEN(\"Events kmday\")+MAX(A2:C6)+MAX(D2:D6)+MAX(E2:F3)", rows),
                "--set ThicknessLinePlot=3");
}

TEST_F(QuorbRender, SeparateObjectsAreDotsAndLinesInTheColoursOfTheirTime) {
  ExpectPicture(
      "separate-objects",
      Spiral("=0.5+LEN(\"PENUP kmday\")+MAX(A2:C10)+MAX(D2:D10)+MAX(E2:F10)+MAX(G2:K10)", "\t\t\t5\t5\t0"));
}

TEST_F(QuorbRender, DrawsUpToTheWantedRow) {
  ExpectPicture("first-rows", Spiral("=0.5+LEN(\"Spiral kmday\")+MAX(A2:C10)+MAX(D2:D10)"), "--row 4");
}

TEST_F(QuorbRender, WhiteBackground) {
  ExpectPicture(
      "white-background", Spiral("=0.5+LEN(\"Spiral kmday\")+MAX(A2:C10)+MAX(D2:D10)"),
      "--set ColourBackground=255,255,255 --set ColourPlotNominal=0,0,200 --set ThicknessLinePlot=2");
}

// Two turns of a coil round the Z axis, 81 points.
std::string Coil(const std::string& formula) {
  std::string rows;
  for (int i = 0; i <= 80; ++i) {
    const double angle = i * 0.1570796;
    rows += std::to_string(20 * std::cos(angle)) + "\t" + std::to_string(20 * std::sin(angle)) + "\t" +
            std::to_string(i * 0.25) + "\t" + std::to_string(45000 + i) + "\r\n";
  }
  return DataFileText(formula, rows);
}

constexpr const char* kCoilFormula = "=0.5+LEN(\"Coil kmday\")+MAX(A2:C82)+MAX(D2:D82)";

TEST_F(QuorbRender, EachFamilyOfViewsHasItsPicture) {
  for (const char* view :
       {"iso", "isonew:0", "isonew:3", "isonewplus:0", "isonewplus:4", "proj:0", "proj:7"}) {
    std::string name = std::string("view-") + view;
    std::replace(name.begin(), name.end(), ':', '-');
    SCOPED_TRACE(name);
    ExpectPicture(name, Coil(kCoilFormula), std::string("--set LengthAxisFactor=1.2 --view ") + view);
  }
}

TEST_F(QuorbRender, TheCubeHasThreeWallsAndAShadowOnEach) {
  ExpectPicture("cube", Coil(kCoilFormula),
                "--view isonew:1 --set CubicView=1 --set LengthAxisFactor=0.9 --set ThicknessLinePlot=2");
}

TEST_F(QuorbRender, AViewFromADirectionIsTheStandardOneOfThatDirection) {
  ExpectPicture("view-isonew-3", Coil(kCoilFormula), "--set LengthAxisFactor=1.2 --view from:135,45");
}

TEST_F(QuorbRender, APointInTheMiddleIsSeenThereAndLarger) {
  ExpectPicture("zoom", Coil(kCoilFormula), "--view from:20,30 --centre 0 --zoom 4");
}

TEST_F(QuorbRender, LargeCharactersAreLarger) {
  ExpectPicture("large-characters", Coil(kCoilFormula),
                "--view isonew:1 --set LargeCharacters=1 --set ColourAxisLabels=255,255,255");
}

TEST_F(QuorbRender, TheLocalFrameIsSeenFromARowOfTheTrajectory) {
  ExpectPicture("local-frame", Coil(kCoilFormula),
                "--view isonew:1 --set NedInput=1 --set LocalCentreIndex=10 --set LengthAxisFactor=1");
}

TEST_F(QuorbRender, SeparateObjectsCarryTheirLabels) {
  ExpectPicture("labels",
                DataFileText("=0.5+LEN(\"PENUPLABEL kmday\")+MAX(A2:C4)+MAX(D2:D4)+MAX(E2:F4)",
                             "-20\t-10\t0\t1\t1\tParis\r\n10\t20\t0\t2\t2\tRome\r\n0\t0\t0\t3\t3\tHere\r\n"),
                "--view from:-90,89.9");
}

// ---- series -----------------------------------------------------------------------------------------------

TEST_F(QuorbRender, ASeriesGoesOnByItsRowsUpToTheLast) {
  run_.Write("plot.qbv", Coil(kCoilFormula));
  const ProgramOutcome outcome = Run("plot.qbv -o film.png --size 64x48 --frames 4 --every 30 --row 10");
  EXPECT_EQ(outcome.status, 0) << outcome.err;
  EXPECT_EQ(outcome.err, "") << "no progress where no terminal is";
  for (const char* pair : {"1 10", "2 40", "3 70", "4 80"}) {
    const std::string number(pair, 1);
    const std::string row(pair + 2);
    ASSERT_EQ(Run("plot.qbv -o single.png --size 64x48 --row " + row).status, 0);
    const ProgramOutcome compared =
        run_.Run("/usr/bin/compare", "-metric AE film" + number + ".png single.png null:");
    EXPECT_EQ(compared.err, "0") << pair;
  }
  EXPECT_FALSE(std::filesystem::exists(run_.File("film5.png")));
  EXPECT_FALSE(std::filesystem::exists(run_.File("film.png")));
}

TEST_F(QuorbRender, ASeriesWithoutARowStartsAtTheFirst) {
  run_.Write("plot.qbv", Coil(kCoilFormula));
  ASSERT_EQ(Run("plot.qbv -o film.bmp --size 64x48 --frames 1 --every 1").status, 0);
  ASSERT_EQ(Run("plot.qbv -o single.bmp --size 64x48 --row 0").status, 0);
  EXPECT_EQ(ContentsOfFile(run_.File("film1.bmp")), ContentsOfFile(run_.File("single.bmp")));
}

TEST_F(QuorbRender, OnATerminalOneLineTellsTheProgressOfASeries) {
  run_.Write("plot.qbv", Coil(kCoilFormula));
  const ProgramOutcome outcome =
      run_.Run("/usr/bin/script", "-qec \"'" QUORB_RENDER_PROGRAM
                                  "' plot.qbv -o film.png --size 64x48 --frames 2 --every 1\" /dev/null");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.out, "\rpicture 1 of 2\rpicture 2 of 2\r\n");
}

TEST_F(QuorbRender, APictureOfASeriesThatCannotBeWrittenEndsIt) {
  run_.Write("plot.qbv", Coil(kCoilFormula));
  const ProgramOutcome outcome = Run("plot.qbv -o nowhere/film.png --size 64x48 --frames 3 --every 1");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_THAT(outcome.err, HasSubstr("nowhere/film1.png"));
}

TEST_F(QuorbRender, BothFormatsShowTheSamePicture) {
  run_.Write("plot.qbv", Spiral("=0.5+LEN(\"Spiral kmday\")+MAX(A2:C10)"));
  ASSERT_EQ(Run("plot.qbv -o out.png --size 101x60").status, 0);
  ASSERT_EQ(Run("plot.qbv -o out.bmp --size 101x60").status, 0);
  EXPECT_EQ(std::filesystem::file_size(run_.File("out.bmp")), 58U + 304U * 60U);
  const ProgramOutcome compared = run_.Run("/usr/bin/compare", "-metric AE out.bmp out.png null:");
  EXPECT_EQ(compared.err, "0");
}

TEST_F(QuorbRender, AFileWithoutRowsGivesNoPicture) {
  run_.Write("empty.qbv", "");
  const ProgramOutcome outcome = Run("empty.qbv -o out.png");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.err,
            "quorb-render: no rows were read from empty.qbv: it has no line behind its header\n");
  EXPECT_FALSE(std::filesystem::exists(run_.File("out.png")));
}

TEST_F(QuorbRender, ARowBehindTheLastIsRefused) {
  run_.Write("plot.qbv", Spiral("=0.5+MAX(A2:C10)"));
  const ProgramOutcome outcome = Run("plot.qbv -o out.png --row 9");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.err, "quorb-render: the plot has no row 9: its last one is 8\n");
}

TEST_F(QuorbRender, AMiddleBehindTheLastRowIsRefused) {
  run_.Write("plot.qbv", Spiral("=0.5+MAX(A2:C10)"));
  const ProgramOutcome outcome = Run("plot.qbv -o out.png --centre 9");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.err, "quorb-render: the plot has no row 9: its last one is 8\n");
}

TEST_F(QuorbRender, APictureThatCannotBeWrittenIsTold) {
  run_.Write("plot.qbv", Spiral("=0.5+MAX(A2:C10)"));
  const ProgramOutcome outcome = Run("plot.qbv -o nowhere/out.png --size 64x64");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_THAT(outcome.err, HasSubstr("nowhere/out.png"));
}

TEST_F(QuorbRender, WrongCallsGiveStatusTwo) {
  run_.Write("plot.qbv", Spiral("=0.5+MAX(A2:C10)"));
  for (const char* arguments : {"",
                                "plot.qbv",
                                "plot.qbv -o out.jpg",
                                "plot.qbv -o out.png --size 10",
                                "plot.qbv -o out.png --size 0x10",
                                "plot.qbv -o out.png --size 20000x10",
                                "plot.qbv -o out.png --row -1",
                                "plot.qbv -o out.png --row x",
                                "plot.qbv -o out.png --set Nothing=1",
                                "plot.qbv -o out.png --set ColourAxis=1",
                                "plot.qbv -o out.png --set CubicView=",
                                "plot.qbv -o out.png --view top",
                                "plot.qbv -o out.png --view proj:8",
                                "plot.qbv -o out.png --view isonewplus:6",
                                "plot.qbv -o out.png --frames 2",
                                "plot.qbv -o out.png --every 2",
                                "plot.qbv -o out.png --frames 0 --every 2",
                                "plot.qbv -o out.png --view from",
                                "plot.qbv -o out.png --view from:10",
                                "plot.qbv -o out.png --view from:10,91",
                                "plot.qbv -o out.png --view from:x,0",
                                "plot.qbv -o out.png --zoom 0",
                                "plot.qbv -o out.png --zoom -1",
                                "plot.qbv -o out.png --zoom 1e7",
                                "plot.qbv -o out.png --zoom x",
                                "plot.qbv -o out.png --centre -1",
                                "plot.qbv -o out.png --centre x",
                                "plot.qbv -o out.png --frames 2 --every 0",
                                "plot.qbv -o out.png --frames x --every 1"}) {
    const ProgramOutcome outcome = Run(arguments);
    EXPECT_EQ(outcome.status, 2) << arguments;
    EXPECT_THAT(outcome.err, HasSubstr("(see quorb-render --help)")) << arguments;
  }
}

}  // namespace
}  // namespace quorb
