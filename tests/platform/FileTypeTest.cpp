#include "FileType.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "ProgramRun.h"
#include "TemporaryDirectory.h"

namespace quorb {
namespace {

using testing::HasSubstr;
using testing::Not;

class FileTypeTest : public testing::Test {
 protected:
  std::string Type() const { return ContentsOfFile(directories.data + "/mime/packages/quorbexcelfile.xml"); }
  std::string Entry() const {
    return ContentsOfFile(directories.data + "/applications/QuorbExcelPro.desktop");
  }
  std::string Choices() const { return ContentsOfFile(directories.config + "/mimeapps.list"); }
  void WriteChoices(const std::string& text) const {
    std::filesystem::create_directories(directories.config);
    std::ofstream(directories.config + "/mimeapps.list") << text;
  }

  TemporaryDirectory home;
  UserDirectories directories{home.File("data"), home.File("config")};
};

TEST_F(FileTypeTest, TheFirstTimeWritesTypeEntryAndDefault) {
  EXPECT_TRUE(TieFileType(directories, "/opt/quorb/QuorbExcelPro"));
  EXPECT_THAT(Type(), HasSubstr("<mime-type type=\"application/x-quorbexcelfile\">"));
  EXPECT_THAT(Type(), HasSubstr("<glob pattern=\"*.qbv\"/>"));
  EXPECT_THAT(Entry(), HasSubstr("\nExec=\"/opt/quorb/QuorbExcelPro\" %f\n"));
  EXPECT_THAT(Entry(), HasSubstr("\nMimeType=application/x-quorbexcelfile;\n"));
  EXPECT_EQ(Choices(), "[Default Applications]\napplication/x-quorbexcelfile=QuorbExcelPro.desktop\n");
}

TEST_F(FileTypeTest, TheSecondTimeWritesNothing) {
  TieFileType(directories, "/opt/quorb/QuorbExcelPro");
  const auto before = std::filesystem::last_write_time(directories.config + "/mimeapps.list");
  EXPECT_FALSE(TieFileType(directories, "/opt/quorb/QuorbExcelPro"));
  EXPECT_EQ(std::filesystem::last_write_time(directories.config + "/mimeapps.list"), before);
}

TEST_F(FileTypeTest, AProgramThatMovedIsTiedAnew) {
  TieFileType(directories, "/old/QuorbExcelPro");
  EXPECT_TRUE(TieFileType(directories, "/new place/100%/QuorbExcelPro"));
  EXPECT_THAT(Entry(), HasSubstr("\nExec=\"/new place/100%%/QuorbExcelPro\" %f\n"));
}

TEST_F(FileTypeTest, TheUsersOtherChoicesAreKept) {
  WriteChoices(
      "[Added Associations]\ntext/plain=a.desktop;\n\n[Default Applications]\ntext/plain=a.desktop\n");
  EXPECT_TRUE(TieFileType(directories, "/opt/QuorbExcelPro"));
  EXPECT_EQ(Choices(),
            "[Added Associations]\ntext/plain=a.desktop;\n\n[Default Applications]\n"
            "application/x-quorbexcelfile=QuorbExcelPro.desktop\ntext/plain=a.desktop\n");
}

TEST_F(FileTypeTest, AnotherProgramThatTheUserChoseForTheTypeStays) {
  const std::string chosen = "[Default Applications]\napplication/x-quorbexcelfile=editor.desktop\n";
  WriteChoices(chosen);
  EXPECT_TRUE(TieFileType(directories, "/opt/QuorbExcelPro"));
  EXPECT_EQ(Choices(), chosen);
}

TEST_F(FileTypeTest, AFileWithoutALastLineEndGetsOne) {
  WriteChoices("[Added Associations]\nx=y");
  TieFileType(directories, "/opt/QuorbExcelPro");
  EXPECT_THAT(Choices(), HasSubstr("x=y\n[Default Applications]\n"));
}

TEST_F(FileTypeTest, OnlyTheSectionOfDefaultsCounts) {
  WriteChoices(
      "[Added Associations]\r\napplication/x-quorbexcelfile=a.desktop;\r\n[Default Applications]\r\n");
  EXPECT_TRUE(TieFileType(directories, "/opt/QuorbExcelPro"));
  EXPECT_EQ(Choices(),
            "[Added Associations]\r\napplication/x-quorbexcelfile=a.desktop;\r\n[Default Applications]\r\n"
            "application/x-quorbexcelfile=QuorbExcelPro.desktop\n");
}

TEST_F(FileTypeTest, ALinkToTheChoicesStaysALink) {
  std::filesystem::create_directories(directories.config);
  std::ofstream(home.File("real.list")) << "[Default Applications]\n";
  std::filesystem::create_symlink(home.File("real.list"), directories.config + "/mimeapps.list");
  EXPECT_TRUE(TieFileType(directories, "/opt/QuorbExcelPro"));
  EXPECT_TRUE(std::filesystem::is_symlink(directories.config + "/mimeapps.list"));
  EXPECT_THAT(ContentsOfFile(home.File("real.list")), HasSubstr("QuorbExcelPro.desktop"));
}

TEST_F(FileTypeTest, ChoicesThatCannotBeReadAreLeftAlone) {
  std::filesystem::create_directories(directories.config + "/mimeapps.list");
  EXPECT_TRUE(TieFileType(directories, "/opt/QuorbExcelPro"));
  EXPECT_TRUE(std::filesystem::is_directory(directories.config + "/mimeapps.list"));
}

TEST_F(FileTypeTest, MarksInThePathAreEscapedTwice) {
  TieFileType(directories, "/a\"b/$c/d\\e/QuorbExcelPro");
  EXPECT_THAT(Entry(), HasSubstr("\nExec=\"/a\\\\\"b/\\\\$c/d\\\\\\\\e/QuorbExcelPro\" %f\n"));
}

TEST_F(FileTypeTest, DirectoriesThatCannotBeMadeAreNoFault) {
  std::ofstream(home.File("file")) << "no directory";
  EXPECT_FALSE(TieFileType({home.File("file"), home.File("file")}, "/opt/QuorbExcelPro"));
}

}  // namespace
}  // namespace quorb
