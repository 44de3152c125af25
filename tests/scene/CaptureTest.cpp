#include "ReadBytes.h"
#include "ScenePlot.h"
#include "ScriptedDialogs.h"
#include "TemporaryDirectory.h"

namespace quorb {
namespace {

/// The pixel at (x, y) is red x, green y, blue 200.
std::array<std::uint8_t, 3> PlaceAsColour(int x, int y) {
  return {static_cast<std::uint8_t>(x), static_cast<std::uint8_t>(y), 200};
}

/// A view of 8 x 6 pixels.
class CaptureTest : public ScenePlot {
 protected:
  CaptureTest() { ShowView(8, 6); }

  void ShowView(int width, int height) {
    SetView(width, height, PlaceAsColour);
    host.width = width;
    host.height = height;
  }

  TemporaryDirectory directory;
  const std::string path = directory.File("a.bmp");
};

// ---- what is read ---------------------------------------------------------------------------------------

TEST_F(CaptureTest, APictureIsReadOnePixelWiderThanAsked) {
  EXPECT_TRUE(scene.WriteBitmap(path, 0, 0, 4, 2));
  EXPECT_THAT(
      RecordedCalls(),
      ElementsAre("ShowBusy(true)", "BeginReading()", "glGetIntegerv(GL_VIEWPORT)",
                  "glPixelStorei(GL_UNPACK_ALIGNMENT, 4)", "glPixelStorei(GL_UNPACK_SKIP_ROWS, 0)",
                  "glPixelStorei(GL_UNPACK_SKIP_PIXELS, 0)", "glPixelStorei(GL_UNPACK_ROW_LENGTH, 0)",
                  "glReadPixels(0, 0, 5, 2, GL_RGB, GL_UNSIGNED_BYTE)", "EndReading()", "ShowBusy(false)"));
  EXPECT_EQ(NumberAt(ReadBytes(path), 18), 5U);
  EXPECT_EQ(NumberAt(ReadBytes(path), 22), 2U);
}

TEST_F(CaptureTest, TheWholeViewIsCutBackToTheView) {
  scene.SaveBMP("a.bmp", directory.File(""));
  EXPECT_EQ(CountOf(RecordedCalls(), "glReadPixels(0, 0, 8, 6, GL_RGB, GL_UNSIGNED_BYTE)"), 1);
}

TEST_F(CaptureTest, APartAwayFromTheCornerIsReadFromThere) {
  EXPECT_TRUE(scene.WriteBitmap(path, 2, 1, 3, 2));
  const auto& calls = RecordedCalls();
  ASSERT_EQ(calls.size(), 10U);
  EXPECT_THAT(std::vector(calls.begin() + 3, calls.begin() + 8),
              ElementsAre("glPixelStorei(GL_UNPACK_ALIGNMENT, 4)", "glPixelStorei(GL_UNPACK_SKIP_ROWS, 1)",
                          "glPixelStorei(GL_UNPACK_SKIP_PIXELS, 2)", "glPixelStorei(GL_UNPACK_ROW_LENGTH, 8)",
                          "glReadPixels(2, 1, 4, 2, GL_RGB, GL_UNSIGNED_BYTE)"));
  const auto bytes = ReadBytes(path);
  ASSERT_EQ(bytes.size(), 58U + 2 * 12);
  // Bottom row first, each pixel as blue, green, red.
  EXPECT_THAT(std::vector(bytes.begin() + 58, bytes.begin() + 64), ElementsAre(200, 1, 2, 200, 1, 3));
  EXPECT_THAT(std::vector(bytes.begin() + 70, bytes.begin() + 76), ElementsAre(200, 2, 2, 200, 2, 3));
}

TEST_F(CaptureTest, EitherOffsetSetsTheRowLength) {
  scene.WriteBitmap(path, 1, 0, 2, 2);
  EXPECT_EQ(CountOf(RecordedCalls(), "glPixelStorei(GL_UNPACK_ROW_LENGTH, 8)"), 1);
  ClearCalls();
  scene.WriteBitmap(path, 0, 1, 2, 2);
  EXPECT_EQ(CountOf(RecordedCalls(), "glPixelStorei(GL_UNPACK_ROW_LENGTH, 8)"), 1);
}

TEST_F(CaptureTest, APartThatReachesBeyondTheViewIsCut) {
  EXPECT_TRUE(scene.WriteBitmap(path, 6, 4, 30, 30));
  EXPECT_EQ(CountOf(RecordedCalls(), "glReadPixels(6, 4, 2, 2, GL_RGB, GL_UNSIGNED_BYTE)"), 1);
  EXPECT_EQ(ReadBytes(path).size(), 58U + 2 * 8);
}

TEST_F(CaptureTest, APartOutsideTheViewIsNotWritten) {
  for (const int place : {-1, 8, 20}) {
    ClearCalls();
    EXPECT_FALSE(scene.WriteBitmap(path, place, place, 2, 2)) << place;
    EXPECT_EQ(CountBeginning(RecordedCalls(), "glReadPixels"), 0);
    EXPECT_EQ(RecordedCalls().back(), "ShowBusy(false)");
  }
  EXPECT_FALSE(scene.WriteBitmap(path, 0, 0, 4, 0));
  EXPECT_EQ(directory.EntryCount(), 0U);
}

TEST_F(CaptureTest, WithoutAPictureNothingIsWritten) {
  host.hasPicture = false;
  EXPECT_FALSE(scene.WriteBitmap(path, 0, 0, 4, 2));
  EXPECT_THAT(RecordedCalls(), ElementsAre("ShowBusy(true)", "BeginReading()", "ShowBusy(false)"));
  EXPECT_EQ(directory.EntryCount(), 0U);
}

// ---- the file -------------------------------------------------------------------------------------------

TEST_F(CaptureTest, AWidthOf101PixelsGivesRowsOf304BytesWithAPadOf1) {
  ShowView(101, 2);
  scene.SaveBMP("a.bmp", directory.File(""));
  const auto bytes = ReadBytes(path);
  ASSERT_EQ(bytes.size(), 58U + 2 * 304);
  EXPECT_EQ(NumberAt(bytes, 0, 2), 0x4D42U);
  EXPECT_EQ(NumberAt(bytes, 2), 666U);
  EXPECT_EQ(NumberAt(bytes, 6), 0U);
  EXPECT_EQ(NumberAt(bytes, 10), 58U);
  EXPECT_EQ(NumberAt(bytes, 14), 40U);
  EXPECT_EQ(NumberAt(bytes, 18), 101U);
  EXPECT_EQ(NumberAt(bytes, 22), 2U);
  EXPECT_EQ(NumberAt(bytes, 26, 2), 1U);
  EXPECT_EQ(NumberAt(bytes, 28, 2), 24U);
  EXPECT_EQ(NumberAt(bytes, 30), 0U);
  EXPECT_EQ(NumberAt(bytes, 34), 608U);
  EXPECT_EQ(NumberAt(bytes, 38), 2952U);
  EXPECT_EQ(NumberAt(bytes, 42), 2952U);
  EXPECT_EQ(NumberAt(bytes, 46), 0U);
  EXPECT_EQ(NumberAt(bytes, 50), 0U);
  EXPECT_EQ(NumberAt(bytes, 54), 0U) << "the empty colour slot";
  // The last pixel of the first row, its pad, and the first pixel of the second row.
  EXPECT_THAT(std::vector(bytes.begin() + 58 + 300, bytes.begin() + 58 + 307),
              ElementsAre(200, 0, 100, 0, 200, 1, 0));
}

TEST_F(CaptureTest, AViewOfOnePixelIsAPictureToo) {
  ShowView(1, 1);
  scene.SaveBMP("a.bmp", directory.File(""));
  const auto bytes = ReadBytes(path);
  ASSERT_EQ(bytes.size(), 62U);
  EXPECT_THAT(std::vector(bytes.begin() + 58, bytes.end()), ElementsAre(200, 0, 0, 0));
}

TEST_F(CaptureTest, AFileOfThisNameIsReplaced) {
  std::ofstream(path) << std::string(5000, 'x');
  scene.SaveBMP("a.bmp", directory.File(""));
  EXPECT_EQ(ReadBytes(path).size(), 58U + 6 * 24);
  EXPECT_EQ(directory.EntryCount(), 1U);
}

// ---- its name -------------------------------------------------------------------------------------------

TEST_F(CaptureTest, TheDirectoryMayEndWithEitherMarkOrNone) {
  const std::string bare = directory.File("").substr(0, directory.File("").size() - 1);
  for (const char* mark : {"", "/", "\\"}) {
    scene.SaveBMP("a.bmp", bare + mark);
    EXPECT_EQ(ReadBytes(path).size(), 58U + 6 * 24) << mark;
    std::filesystem::remove(path);
    EXPECT_EQ(directory.EntryCount(), 0U) << "nor anywhere else in it";
  }
}

TEST_F(CaptureTest, TheDirectoryMayBeWrittenWithTheOtherMark) {
  std::filesystem::create_directory(directory.File("orbit"));
  std::string other = directory.File("orbit");
  std::replace(other.begin(), other.end(), '/', '\\');
  scene.SaveBMP("a.bmp", other);
  EXPECT_EQ(ReadBytes(directory.File("orbit/a.bmp")).size(), 58U + 6 * 24);
}

TEST_F(CaptureTest, AnEmptyNameIsImageSaved) {
  EXPECT_TRUE(scene.SaveBMP("", directory.File("")));
  EXPECT_EQ(ReadBytes(directory.File("ImageSaved.bmp")).size(), 58U + 6 * 24);
}

TEST_F(CaptureTest, AMissingDirectoryMeansNoFileAndNoMessage) {
  ScriptedDialogs dialogs;
  EXPECT_FALSE(scene.SaveBMP("a.bmp", directory.File("missing")));
  EXPECT_EQ(directory.EntryCount(), 0U);
  EXPECT_TRUE(dialogs.boxes.empty());
  EXPECT_EQ(RecordedCalls().back(), "ShowBusy(false)");
  EXPECT_FALSE(scene.WriteBitmap(directory.File("missing/a.bmp"), 0, 0, 4, 2));
}

}  // namespace
}  // namespace quorb
