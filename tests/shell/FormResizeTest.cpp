#include <cmath>

#include "WindowFixture.h"

namespace quorb {
namespace {

class FormResizeTest : public WindowFixture {
 protected:
  FormResizeTest() {
    Load();
    frmMain->Toolbar1.Height = 600;
    frmMain->StatusBar1.Height = 300;
    frmMain->TextTempo.Height = 240;
    frmMain->Command6.Height = 360;
    ClearCalls();
  }

  static void Resize(double width, double height) {
    frmMain->form.Width = width;
    frmMain->form.Height = height;
    Form_Resize();
  }

  static void ExpectPlot(double left, double top, double width, double height) {
    EXPECT_EQ(frmMain->GlPlace.Left, left);
    EXPECT_EQ(frmMain->GlPlace.Top, top);
    EXPECT_EQ(frmMain->GlPlace.Width, width);
    EXPECT_EQ(frmMain->GlPlace.Height, height);
  }
};

TEST_F(FormResizeTest, ThePlotTakesWhatTheBarsLeave) {
  Resize(9000, 6900);
  ExpectPlot(0, 600, 9000, 6000);
}

TEST_F(FormResizeTest, TheSizeIsTruncatedToWholePixels) {
  Resize(9014.9, 6914.9);
  ExpectPlot(0, 600, 9000, 6000);
}

TEST_F(FormResizeTest, TheTextsStandAtTheBottomOfThePlot) {
  Resize(9000, 6900);
  EXPECT_EQ(frmMain->Combo1.Top, 6600);
  EXPECT_EQ(frmMain->Text14.Top, 6600);
  EXPECT_EQ(frmMain->TextTempo.Top, 6600 - 240);
  EXPECT_EQ(frmMain->Command6.Top, 6600 - 240 - 360);
}

TEST_F(FormResizeTest, ThePlotIsRedrawnAndThenPendingEventsRun) {
  Resize(9000, 6900);
  EXPECT_THAT(RecordedCalls(), ElementsAre("Redraw()", "PumpEvents()"));
}

TEST_F(FormResizeTest, AWindowShrunkToNothingGivesAPlotOf1By1) {
  Resize(0, 0);
  ExpectPlot(0, 600, 15, 15);
  EXPECT_EQ(frmMain->Combo1.Top, 615);
}

TEST_F(FormResizeTest, ASizeThatOverflowsStaysAt1) {
  Resize(INFINITY, 1e300);
  ExpectPlot(0, 600, 15, 15);
  Resize(NAN, NAN);
  ExpectPlot(0, 600, 15, 15);
}

}  // namespace
}  // namespace quorb
