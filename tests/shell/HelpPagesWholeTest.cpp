#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "HelpPages.h"

namespace quorb {
namespace {

// Each paragraph on a line of its own, word by word: the help is also the short guide to the formula.
const std::vector<std::vector<std::string>> kPages = {
    {
        R"x(Show in live a real Quorbial 3D trajectory or object from the current already opened )x"
        R"x(Excel sheet with 3 contiguous columns of values X, Y, Z)x",
        R"x(Select a cell in your Excel sheet containing a formula like      = MAX(A2:C2000)      )x"
        R"x(for the range of cells X,Y,Z  And run this program. It's all.)x",
        R"x(After a while --data loading--, enjoy the mouse functions left or right button down in )x"
        R"x(the plot window, and  try the icons! Try also the window full size.)x",
        R"x( ** Dble Click in the plot window to disable/enable the automatic rotation given while )x"
        R"x(moving the mouse with the right button down!)x",
        R"x( ** Move the cursors labelled Redraw Start and Redraw Speed in order to watch )x"
        R"x(dynamically the plot increasing.)x",
        R"x( ** If the time is given (see full syntax here after), the time will appear moving on )x"
        R"x(the plot!  etc.)x",
        R"x(Note : if Excel is not already open, the program sent a message to open it, and if )x"
        R"x(still not open, then a Demo plot or the previous file plot is run. Maximum number of )x"
        R"x(points= 1 0485 756 (instead of 32000 for Excel plots).)x",
    },
    {
        R"x(Note : The full syntax of the formula is      = 0.01 +  LEN("MyTitle kmday") + )x"
        R"x(MAX(A2:C2000) + MAX(D2:D2000)+MAX(E2:F30)+...etc)x",
        R"x(In this example  0.01   is a scaling factor for the values X, Y, Z       MyTitle    is )x"
        R"x(the comment which will appears in the corner. Default units are m and s; kmday is a )x"
        R"x(keyword for the non-defautl units)x",
        R"x(A2:C2000   is the range for the cells containing  X, Y, Z                  D2:D2000  is )x"
        R"x(the range for the cells containing the time T of the data X, Y, Z.  In short, D2 only )x"
        R"x(is accepted.)x",
        R"x(E2:F30  is the range for the cells containing  Time with Events: event=1 for starting )x"
        R"x(the plot with a Event major colour,  event=0 for continuing the plot with a Nominal )x"
        R"x(minor colour.)x",
        R"x(+...etc  is the range for the cells containing  Time with quaternions  w x y z   )x"
        R"x(and     Time with angle° of rotation of each panel ...)x",
        R"x(Note : The order of the terms in the formula must be preserved. The specification )x"
        R"x(MAX's... can be simplified as a single one MAX(A2:O2000).)x",
    },
    {
        R"x(Note : The program will take into account the first cell it found with a key word  MAX )x"
        R"x(if the cell containing the formula is not selected. )x",
        R"x(Note : YOU CAN DYNAMICALLY CHANGE THE WORKSHEET DATA TO IMMEDIATELY CHANGE THE )x"
        R"x(QuorbExcelPro PLOT. See the User Manual.)x",
        R"x(Note: The plot is performed with an automatic scale on each axis, except if a scaling )x"
        R"x(factor is given. The earth sphere (r= 6378 km ) and moon will be shown if the formula )x"
        R"x(scaling factor is given <>1. See the Menu File/Options to change many settings)x",
        R"x(Note about the available PenUp function: If a X data is empty (ie its cell equal ""), )x"
        R"x(the plot line is interrupted. YOU CAN DRAW MANY OBJECTS.)x",
    },
    {
        R"x(Important Note: You can use the software in a Powerpoint presentation : See the )x"
        R"x(Menu     File/ To run in PowerPoint       for creating a specific file and facilitating )x"
        R"x(the needed specification to paste into one of the Powerpoint object.)x",
        R"x(Note: Each time the programme runs, it create (and reset if exist)  a file in the )x"
        R"x(programme directory with the name "_QuorbExcelPro.qbv". You can )x"
        R"x(rename that file for traceability or future use in a Powerpoint presentation.)x",
        R"x(Note: All the files created have extension .qbv. Those are associated to the tool )x"
        R"x(QuorbExcelPro, just dble click on it for the show.)x",
        R"x(Special Windows 8: the true files created are stored in the programme directory of the )x"
        R"x(Virtual Store located at : "C:\Users\...\AppData\Local\VirtualStore\...")x",
        R"x(   Click on   OK    to run the    Demo  ! )x",
    },
};

TEST(HelpPagesWhole, EveryWordOfTheFourPagesStands) {
  ASSERT_EQ(kPages.size(), static_cast<std::size_t>(kHelpPages));
  for (int page = 1; page <= kHelpPages; ++page) {
    std::string text;
    for (const std::string& paragraph : kPages[static_cast<std::size_t>(page - 1)])
      text += (text.empty() ? "" : "\n") + paragraph;
    EXPECT_EQ(HelpText(page), text) << page;
  }
}

}  // namespace
}  // namespace quorb
