#include "FileChoice.h"

#include <filesystem>

#include "DataFile.h"
#include "LoadFixture.h"

namespace quorb {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class FileChoiceTest : public LoadFixture {
 protected:
  FileChoiceTest() : directory(std::filesystem::current_path().string()) {}
  ~FileChoiceTest() override { CloseChannel(1); }

  bool Choose() { return ChooseFile(BuildPlotFileNames(), ErrorNumber, window); }

  bool ChooseNamed(const std::string& name) {
    CommandFileMode = 1;
    FILEcOMMANDnAME = name;
    return Choose();
  }

  std::string OpenedLine() {
    std::string lin;
    LinInputW(1, lin, window);
    return lin;
  }

  const std::string directory;
  int ErrorNumber = -1;
};

TEST_F(FileChoiceTest, NamesStandInTheProgramsDirectory) {
  AppDir = "/opt/quorb/";
  EXPECT_EQ(BuildPlotFileNames().NameTempo, "/opt/quorb/_QuorbExcelPro.qbv");
  EXPECT_EQ(BuildPlotFileNames().NameTempoDemo, "/opt/quorb/QuorbExcelProDemo.qbv");
}

TEST_F(FileChoiceTest, AppDirGetsADirectoryMarkIfItHasNone) {
  AppDir = "/opt/quorb";
  EXPECT_EQ(BuildPlotFileNames().NameTempo, "/opt/quorb/_QuorbExcelPro.qbv");
  EXPECT_EQ(AppDir, "/opt/quorb/");
  AppDir = "C:\\quorb\\";
  EXPECT_EQ(BuildPlotFileNames().NameTempo, "C:\\quorb\\_QuorbExcelPro.qbv");
}

TEST_F(FileChoiceTest, NormallyTheFileOfTheLastLoadIsOpened) {
  files.contents["/app/_QuorbExcelPro.qbv"] = "last";
  files.contents["/app/QuorbExcelProDemo.qbv"] = "demo";
  EXPECT_FALSE(Choose());
  EXPECT_EQ(ErrorNumber, 0);
  EXPECT_EQ(OpenedLine(), "last");
  EXPECT_EQ(window.readingName, "/app/_QuorbExcelPro.qbv");
  EXPECT_EQ(window.namedFile, "");
  EXPECT_THAT(window.log, ElementsAre("/app/_QuorbExcelPro.qbv is open", " The demo will be shown False"));
  EXPECT_THAT(dialogs.boxes, IsEmpty());
}

TEST_F(FileChoiceTest, WithoutItTheDemonstrationFileIsOpened) {
  files.contents["/app/QuorbExcelProDemo.qbv"] = "demo";
  EXPECT_FALSE(Choose());
  EXPECT_EQ(OpenedLine(), "demo");
  EXPECT_EQ(window.readingName, "/app/_QuorbExcelPro.qbv");
  EXPECT_THAT(window.log,
              ElementsAre("/app/_QuorbExcelPro.qbv is NOT open, error:53 File not found",
                          "/app/QuorbExcelProDemo.qbv is open", "NameTempoDemo$ /app/QuorbExcelProDemo.qbv",
                          " The demo will be shown False"));
}

TEST_F(FileChoiceTest, WhereTheImagesGoElsewhereTheDemonstrationBesideTheProgramIsOpened) {
  AppDir = "/home/user/images";
  ProgramDir = "/app";
  files.contents["/app/QuorbExcelProDemo.qbv"] = "demo";
  EXPECT_FALSE(Choose());
  EXPECT_EQ(ErrorNumber, 0);
  EXPECT_EQ(OpenedLine(), "demo");
  EXPECT_THAT(PlotFilesInTurn(),
              ElementsAre("/home/user/images/_QuorbExcelPro.qbv", "/home/user/images/QuorbExcelProDemo.qbv",
                          "/app/QuorbExcelProDemo.qbv"));
  files.contents["/home/user/images/QuorbExcelProDemo.qbv"] = "theirs";
  EXPECT_FALSE(Choose());
  EXPECT_EQ(OpenedLine(), "theirs") << "the one that stands there goes before";
}

TEST_F(FileChoiceTest, APlotFileBesideTheDemonstrationIsPassedOverWhileThatIsShown) {
  ProgramDir = "/app/";
  EXPECT_THAT(PlotFilesInTurn(), ElementsAre("/app/_QuorbExcelPro.qbv", "/app/QuorbExcelProDemo.qbv"));
  FileMode = 1;
  EXPECT_THAT(PlotFilesInTurn(), ElementsAre("/app/QuorbExcelProDemo.qbv"));
}

TEST_F(FileChoiceTest, AMissingDirectoryLeadsToTheDemonstrationFileToo) {
  files.failures["/app/_QuorbExcelPro.qbv"] = 76;
  files.contents["/app/QuorbExcelProDemo.qbv"] = "demo";
  EXPECT_FALSE(Choose());
  EXPECT_EQ(OpenedLine(), "demo");
}

TEST_F(FileChoiceTest, AFileThatCannotBeReadDoesNot) {
  files.failures["/app/_QuorbExcelPro.qbv"] = 70;
  files.contents["/app/QuorbExcelProDemo.qbv"] = "demo";
  EXPECT_FALSE(Choose());
  EXPECT_EQ(ErrorNumber, 70);
  EXPECT_TRUE(AtEndOfFile(1));
}

TEST_F(FileChoiceTest, WithFileModeOneTheDemonstrationIsOpenedAndAnnounced) {
  files.contents["/app/_QuorbExcelPro.qbv"] = "last";
  files.contents["/app/QuorbExcelProDemo.qbv"] = "demo";
  FileMode = 1;
  EXPECT_TRUE(Choose());
  EXPECT_EQ(OpenedLine(), "demo");
  ASSERT_THAT(dialogs.boxes, SizeIs(1));
  EXPECT_EQ(dialogs.boxes[0].prompt, "The demo will be shown.");
  EXPECT_EQ(dialogs.boxes[0].title, "Demo default");
  EXPECT_EQ(dialogs.boxes[0].style, kBoxInformationIcon);
  EXPECT_TRUE(window.HasLog(" The demo will be shown True"));
}

TEST_F(FileChoiceTest, WithFileModeOneTheDemonstrationIsOpenedThoughANamedFileIsOnShow) {
  files.contents["/app/_QuorbExcelPro.qbv"] = "last";
  files.contents["/app/QuorbExcelProDemo.qbv"] = "demo";
  files.contents["/data/own.qbv"] = "own";
  FileMode = 1;
  EXPECT_TRUE(ChooseNamed("/data/own.qbv"));
  EXPECT_EQ(OpenedLine(), "demo");
}

TEST_F(FileChoiceTest, NoFileAtAllShowsTheMessage) {
  EXPECT_TRUE(Choose());
  EXPECT_EQ(ErrorNumber, 53);
  EXPECT_THAT(dialogs.boxes, SizeIs(1));
}

TEST_F(FileChoiceTest, ANamedFileGoesBeforeAllThat) {
  files.contents["/app/_QuorbExcelPro.qbv"] = "last";
  files.contents["/data/orbit.qbv"] = "named";
  EXPECT_FALSE(ChooseNamed("/data/orbit.qbv"));
  EXPECT_EQ(OpenedLine(), "named");
  EXPECT_EQ(window.namedFile, "/data/orbit.qbv");
  EXPECT_EQ(window.readingName, "");
  EXPECT_THAT(files.asked, ElementsAre("/data/orbit.qbv"));
  EXPECT_THAT(window.log, ElementsAre("FILEcOMMANDnAME$ /data/orbit.qbv", "/data/orbit.qbv is open",
                                      " The demo will be shown False"));
}

TEST_F(FileChoiceTest, WithFileModeTwoTheNamedFileIsOpenedAgain) {
  files.contents["/data/orbit.qbv"] = "named";
  FileMode = 2;
  FILEcOMMANDnAME = "/data/orbit.qbv";
  EXPECT_FALSE(Choose());
  EXPECT_EQ(OpenedLine(), "named");
}

TEST_F(FileChoiceTest, AMissingNamedFileIsAnnouncedAndNoOtherFileTakesItsPlace) {
  files.contents["/app/_QuorbExcelPro.qbv"] = "last";
  files.contents["/app/QuorbExcelProDemo.qbv"] = "demo";
  EXPECT_TRUE(ChooseNamed("/data/none.qbv"));
  EXPECT_EQ(ErrorNumber, 53);
  EXPECT_TRUE(AtEndOfFile(1));
  EXPECT_THAT(dialogs.boxes, SizeIs(1));
}

TEST_F(FileChoiceTest, ANamedFileInAMissingDirectoryIsNotAnnounced) {
  files.failures["/none/orbit.qbv"] = 76;
  EXPECT_FALSE(ChooseNamed("/none/orbit.qbv"));
  EXPECT_EQ(ErrorNumber, 76);
  EXPECT_THAT(dialogs.boxes, IsEmpty());
}

TEST_F(FileChoiceTest, ANameGivenWithoutADirectoryIsTakenFromTheCurrentDirectory) {
  files.contents[directory + "/orbit.qbv"] = "named";
  EXPECT_FALSE(ChooseNamed("orbit.qbv"));
  EXPECT_EQ(OpenedLine(), "named");
  EXPECT_EQ(FILEcOMMANDnAME, directory + "/orbit.qbv");
  EXPECT_EQ(window.namedFile, directory + "/orbit.qbv");
}

TEST_F(FileChoiceTest, ANameInQuotesLosesItsQuotes) {
  files.contents["/data/my orbit.qbv"] = "named";
  EXPECT_FALSE(ChooseNamed("\"/data/my orbit.qbv\""));
  EXPECT_EQ(OpenedLine(), "named");
  EXPECT_EQ(FILEcOMMANDnAME, "/data/my orbit.qbv");
  EXPECT_EQ(window.namedFile, "\"/data/my orbit.qbv\"");
  EXPECT_THAT(window.log, ElementsAre("FILEcOMMANDnAME$ \"/data/my orbit.qbv\"",
                                      "FILEcOMMANDnAME$ cleaned /data/my orbit.qbv",
                                      "/data/my orbit.qbv is open", " The demo will be shown False"));
}

TEST_F(FileChoiceTest, ANameInQuotesWithoutADirectoryIsTakenFromTheCurrentDirectoryToo) {
  files.contents[directory + "/my orbit.qbv"] = "named";
  EXPECT_FALSE(ChooseNamed("\"my orbit.qbv\""));
  EXPECT_EQ(FILEcOMMANDnAME, directory + "/my orbit.qbv");
  EXPECT_EQ(OpenedLine(), "named");
}

TEST_F(FileChoiceTest, EitherDirectoryMarkMakesADirectory) {
  ChooseNamed("data\\orbit.qbv");
  EXPECT_EQ(FILEcOMMANDnAME, "data\\orbit.qbv");
  ChooseNamed("data/orbit.qbv");
  EXPECT_EQ(FILEcOMMANDnAME, "data/orbit.qbv");
}

TEST_F(FileChoiceTest, ALoneQuoteIsAPartOfTheName) {
  ChooseNamed("/data/\"");
  EXPECT_EQ(FILEcOMMANDnAME, "/data/\"");
  ChooseNamed("\"");
  EXPECT_EQ(FILEcOMMANDnAME, directory + "/\"");
}

}  // namespace
}  // namespace quorb
