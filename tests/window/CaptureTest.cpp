#include <cmath>
#include <filesystem>
#include <set>

#include "Movie.h"
#include "OpenWindow.h"

namespace quorb {
namespace {

/// Number of four bytes, little-endian, in a file's header.
unsigned NumberAt(const std::string& bytes, std::size_t offset) {
  unsigned number = 0;
  for (std::size_t i = 4; i > 0; --i)
    number = number * 256 + static_cast<unsigned char>(bytes.at(offset + i - 1));
  return number;
}

class Capture : public OpenWindow {
 protected:
  /// A spiral of 4000 points, a minute apart, at 32 rows a pass.
  void OpenSpiral() {
    std::string rows;
    for (int i = 0; i < 4000; ++i) {
      rows += std::to_string(1000 * std::cos(i * 0.01)) + "\t" + std::to_string(1000 * std::sin(i * 0.01)) +
              "\t" + std::to_string(i * 0.5) + "\t" + std::to_string(i / 1440.0) + "\r\n";
    }
    run.Write("spiral.qbv", DataFileText("=0.01+LEN(\"Spiral kmday\")+MAX(A2:C4001)+MAX(D2:D4001)", rows));
    Open(run.File("spiral.qbv"));
    frmMain->HScroll2.value = 5;
    TheScene->CURRINDEXI = 0;
    QTest::qWait(50);
  }

  /// Runs a movie of 20 frames to its end; the file names that it left.
  std::set<std::string> RunMovie(double frameTime, double inDataTime) {
    std::filesystem::create_directory(run.File("movie"));
    MovieDirectory = run.File("movie");
    MoviePrefix = "part";
    USERFLAG.MovieFrames = 20;
    USERFLAG.MovieFrameTime = frameTime;
    USERFLAG.MovieRealTime = inDataTime;
    USERFLAG.MovieNextTime = 0;
    USERFLAG.MovieFrameCount = 1;
    EXPECT_TRUE(QTest::qWaitFor([] { return USERFLAG.MovieFrameCount == 0; }, 60000));
    QTest::qWait(200);
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(run.File("movie")))
      names.insert(entry.path().filename().string());
    return names;
  }

  std::string Frame(int number) const {
    return ContentsOfFile(run.File("movie/part" + std::to_string(number) + ".bmp"));
  }

  static std::set<std::string> TwentyNames() {
    std::set<std::string> names;
    for (int number = 1; number <= 20; ++number)
      names.insert("part" + std::to_string(number) + ".bmp");
    return names;
  }

  /// Whether a file is a picture of the view's size.
  void ExpectPictureOfTheView(const std::string& bytes) const {
    const auto width = static_cast<unsigned>(plot->width());
    const auto height = static_cast<unsigned>(plot->height());
    ASSERT_GT(bytes.size(), 58U);
    EXPECT_EQ(NumberAt(bytes, 18), width);
    EXPECT_EQ(NumberAt(bytes, 22), height);
    EXPECT_EQ(bytes.size(), 58 + (3 * width + 3) / 4 * 4 * height);
  }

  /// The picture that the widget shows, as red, green, blue, the top row first.
  std::string Shown() const {
    const QImage image = plot->grabFramebuffer().convertToFormat(QImage::Format_RGB888);
    std::string rows;
    for (int y = 0; y < image.height(); ++y)
      rows.append(reinterpret_cast<const char*>(image.constScanLine(y)),
                  3 * static_cast<std::size_t>(image.width()));
    return rows;
  }

  /// The pixels of a file in the same order.
  static std::string PixelsOf(const std::string& bytes) {
    const std::size_t width = NumberAt(bytes, 18);
    const std::size_t rowBytes = (3 * width + 3) / 4 * 4;
    std::string rows;
    for (std::size_t y = NumberAt(bytes, 22); y > 0; --y) {
      const std::size_t start = 58 + (y - 1) * rowBytes;
      for (std::size_t x = 0; x < width; ++x)
        rows += {bytes[start + 3 * x + 2], bytes[start + 3 * x + 1], bytes[start + 3 * x]};
    }
    return rows;
  }
};

TEST_F(Capture, TheFileHoldsThePictureOnShow) {
  OpenSmallPlot();
  TheScene->SaveBMP("", run.File(""));
  const std::string bytes = ContentsOfFile(run.File("ImageSaved.bmp"));
  ExpectPictureOfTheView(bytes);
  EXPECT_EQ(PixelsOf(bytes), Shown());
  EXPECT_GT(std::set<char>(bytes.begin() + 58, bytes.end()).size(), 10U);
}

TEST_F(Capture, BehindAChangeOfTheSizeTheFileHasTheNewOne) {
  OpenSmallPlot();
  window->resize(701, 433);
  ASSERT_TRUE(QTest::qWaitFor([this] { return plot->width() == 701; }));
  TheScene->SaveBMP("at once.bmp", run.File(""));
  ExpectPictureOfTheView(ContentsOfFile(run.File("at once.bmp")));
  Settle();
  TheScene->SaveBMP("later.bmp", run.File(""));
  const std::string bytes = ContentsOfFile(run.File("later.bmp"));
  ExpectPictureOfTheView(bytes);
  EXPECT_EQ(PixelsOf(bytes), Shown());
}

TEST_F(Capture, TheFramesBehindACaptureStayTheSame) {
  OpenSmallPlot();
  const std::string before = Shown();
  TheScene->SaveBMP("", run.File(""));
  plot->update();
  Settle();
  EXPECT_EQ(Shown(), before);
}

TEST_F(Capture, BeforeTheFirstFrameThereIsNoFile) {
  window = std::make_unique<ViewerWindow>();
  window->Load(run.File("nothing at all.qbv"));
  TheScene->SaveBMP("", run.File(""));
  EXPECT_FALSE(std::filesystem::exists(run.File("ImageSaved.bmp")));
}

TEST_F(Capture, ViewsOfOnePixelAndOf8000By100PixelsAreSaved) {
  OpenSmallPlot();
  for (const QSize size : {QSize(1, 1), QSize(8000, 100)}) {
    plot->resize(size);
    Settle();
    TheScene->SaveBMP("", run.File(""));
    const std::string bytes = ContentsOfFile(run.File("ImageSaved.bmp"));
    ExpectPictureOfTheView(bytes);
    EXPECT_EQ(NumberAt(bytes, 18), static_cast<unsigned>(size.width()));
    EXPECT_EQ(NumberAt(bytes, 22), static_cast<unsigned>(size.height()));
    EXPECT_EQ(PixelsOf(bytes), Shown());
  }
}

TEST_F(Capture, AMovieInTheTimeOfTheClockIsTwentyFiles) {
  OpenSpiral();
  const auto start = Clock::now();
  EXPECT_EQ(RunMovie(0.1, 0), TwentyNames());
  // Nineteen waits of a tenth of a second from the first frame to the last.
  EXPECT_GE(Clock::now() - start, std::chrono::milliseconds(1900));
  for (int number = 1; number <= 20; ++number)
    ExpectPictureOfTheView(Frame(number));
}

TEST_F(Capture, AMovieInTheTimeOfTheDataIsTwentyDifferentPictures) {
  OpenSpiral();
  // A frame every hour of the data: every 60 rows, so at every second pass.
  EXPECT_EQ(RunMovie(3600, 1), TwentyNames());
  std::set<std::string> pictures;
  for (int number = 1; number <= 20; ++number) {
    ExpectPictureOfTheView(Frame(number));
    pictures.insert(Frame(number));
  }
  EXPECT_EQ(pictures.size(), 20U);
}

TEST_F(Capture, AMovieIntoAMissingDirectoryEndsWithoutFiles) {
  OpenSpiral();
  MovieDirectory = run.File("none");
  MoviePrefix = "part";
  USERFLAG.MovieFrames = 3;
  USERFLAG.MovieFrameTime = 0.01;
  USERFLAG.MovieFrameCount = 1;
  EXPECT_TRUE(QTest::qWaitFor([] { return USERFLAG.MovieFrameCount == 0; }, 20000));
  EXPECT_FALSE(std::filesystem::exists(run.File("none")));
}

}  // namespace
}  // namespace quorb
