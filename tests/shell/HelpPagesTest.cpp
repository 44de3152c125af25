#include "HelpPages.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "FakeDesktop.h"
#include "RunState.h"

namespace quorb {
namespace {

TEST(HelpPages, TheTitlesCarryTheirNumbersAndTheYears) {
  FakeDesktop desktop;
  EXPECT_EQ(HelpTitle(1), "1/4 QuorbExcelPro  2025-2026");
  EXPECT_EQ(HelpTitle(2), "2/4 QuorbExcelPro  2025-2026");
  EXPECT_EQ(HelpTitle(3), "31/4 QuorbExcelPro  2025-2026");
  EXPECT_EQ(HelpTitle(4), "4/4 QuorbExcelPro  2025-2026");
  EXPECT_EQ(AboutTitle(), "QuorbExcelPro  2025-2026");
  desktop.year = 1970;
  EXPECT_EQ(AboutTitle(), "QuorbExcelPro  2025") << "a clock that is wrong";
}

TEST(HelpPages, EachPageHasItsParagraphs) {
  const std::ptrdiff_t lineFeeds[] = {6, 5, 3, 4};
  for (int page = 1; page <= kHelpPages; ++page) {
    const std::string text = HelpText(page);
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), lineFeeds[page - 1]) << page;
    EXPECT_EQ(text.find('\r'), text.npos);
  }
}

TEST(HelpPages, TheFirstPageTellsHowToBegin) {
  EXPECT_EQ(
      HelpText(1),
      "Show in live a real Quorbial 3D trajectory or object from the current already opened Excel sheet "
      "with 3 contiguous columns of values X, Y, Z\n"
      "Select a cell in your Excel sheet containing a formula like      = MAX(A2:C2000)      for the "
      "range of cells X,Y,Z  And run this program. It's all.\n"
      "After a while --data loading--, enjoy the mouse functions left or right button down in the plot "
      "window, and  try the icons! Try also the window full size.\n"
      " ** Dble Click in the plot window to disable/enable the automatic rotation given while moving the "
      "mouse with the right button down!\n"
      " ** Move the cursors labelled Redraw Start and Redraw Speed in order to watch dynamically the "
      "plot increasing.\n"
      " ** If the time is given (see full syntax here after), the time will appear moving on the plot!  "
      "etc.\n"
      "Note : if Excel is not already open, the program sent a message to open it, and if still not "
      "open, then a Demo plot or the previous file plot is run. Maximum number of points= 1 0485 756 "
      "(instead of 32000 for Excel plots).");
}

TEST(HelpPages, QuotesStandWhereTheTextHasThem) {
  EXPECT_TRUE(HelpText(2).starts_with(
      "Note : The full syntax of the formula is      = 0.01 +  LEN(\"MyTitle kmday\") + MAX(A2:C2000) + "
      "MAX(D2:D2000)+MAX(E2:F30)+...etc\n"));
  EXPECT_NE(HelpText(2).find("angle° of rotation of each panel ..."), std::string::npos);
  EXPECT_NE(HelpText(3).find("(ie its cell equal \"\"), the plot line is interrupted."), std::string::npos);
  EXPECT_NE(HelpText(4).find("with the name \"_QuorbExcelPro.qbv\". You can rename"), std::string::npos);
  EXPECT_NE(HelpText(4).find("located at : \"C:\\Users\\...\\AppData\\Local\\VirtualStore\\...\"\n"),
            std::string::npos);
  EXPECT_TRUE(HelpText(4).ends_with("\n   Click on   OK    to run the    Demo  ! "));
}

TEST(HelpPages, TheAboutBoxNamesTheRelease) {
  VersionDigits = "002008006";
  EXPECT_EQ(AboutText(), "Release QuorbExcelPro: 002008006\n\nA worksheet in three dimensions, live.");
}

}  // namespace
}  // namespace quorb
