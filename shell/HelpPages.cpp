#include "HelpPages.h"

#include <initializer_list>

#include "Desktop.h"
#include "RunState.h"

namespace quorb {

namespace {

constexpr const char* kProgram = "QuorbExcelPro";
constexpr const char* kTagLine = "A worksheet in three dimensions, live.";
constexpr int kFirstYear = 2025;

struct Page {
  const char* number;
  std::initializer_list<const char*> paragraphs;
};

constexpr std::initializer_list<const char*> kFirstPage = {
    "Show in live a real Quorbial 3D trajectory or object from the current already opened Excel sheet with 3 "
    "contiguous columns of values X, Y, Z",
    "Select a cell in your Excel sheet containing a formula like      = MAX(A2:C2000)      for the range of "
    "cells X,Y,Z  And run this program. It's all.",
    "After a while --data loading--, enjoy the mouse functions left or right button down in the plot window, "
    "and  try the icons! Try also the window full size.",
    " ** Dble Click in the plot window to disable/enable the automatic rotation given while moving the mouse "
    "with the right button down!",
    " ** Move the cursors labelled Redraw Start and Redraw Speed in order to watch dynamically the plot "
    "increasing.",
    " ** If the time is given (see full syntax here after), the time will appear moving on the plot!  etc.",
    "Note : if Excel is not already open, the program sent a message to open it, and if still not open, then "
    "a Demo plot or the previous file plot is run. Maximum number of points= 1 0485 756 (instead of 32000 "
    "for "
    "Excel plots).",
};

constexpr std::initializer_list<const char*> kSecondPage = {
    "Note : The full syntax of the formula is      = 0.01 +  LEN(\"MyTitle kmday\") + MAX(A2:C2000) + "
    "MAX(D2:D2000)+MAX(E2:F30)+...etc",
    "In this example  0.01   is a scaling factor for the values X, Y, Z       MyTitle    is the comment "
    "which "
    "will appears in the corner. Default units are m and s; kmday is a keyword for the non-defautl units",
    "A2:C2000   is the range for the cells containing  X, Y, Z                  D2:D2000  is the range for "
    "the cells containing the time T of the data X, Y, Z.  In short, D2 only is accepted.",
    "E2:F30  is the range for the cells containing  Time with Events: event=1 for starting the plot with a "
    "Event major colour,  event=0 for continuing the plot with a Nominal minor colour.",
    "+...etc  is the range for the cells containing  Time with quaternions  w x y z   and     Time with "
    "angle° of rotation of each panel ...",
    "Note : The order of the terms in the formula must be preserved. The specification MAX's... can be "
    "simplified as a single one MAX(A2:O2000).",
};

constexpr std::initializer_list<const char*> kThirdPage = {
    "Note : The program will take into account the first cell it found with a key word  MAX if the cell "
    "containing the formula is not selected. ",
    "Note : YOU CAN DYNAMICALLY CHANGE THE WORKSHEET DATA TO IMMEDIATELY CHANGE THE QuorbExcelPro PLOT. See "
    "the User Manual.",
    "Note: The plot is performed with an automatic scale on each axis, except if a scaling factor is given. "
    "The earth sphere (r= 6378 km ) and moon will be shown if the formula scaling factor is given <>1. See "
    "the Menu File/Options to change many settings",
    "Note about the available PenUp function: If a X data is empty (ie its cell equal \"\"), the plot line "
    "is "
    "interrupted. YOU CAN DRAW MANY OBJECTS.",
};

constexpr std::initializer_list<const char*> kFourthPage = {
    "Important Note: You can use the software in a Powerpoint presentation : See the Menu     File/ To run "
    "in "
    "PowerPoint       for creating a specific file and facilitating the needed specification to paste into "
    "one of the Powerpoint object.",
    "Note: Each time the programme runs, it create (and reset if exist)  a file in the programme directory "
    "with the name \"_QuorbExcelPro.qbv\". You can rename that file for traceability or future use in a "
    "Powerpoint presentation.",
    "Note: All the files created have extension .qbv. Those are associated to the tool QuorbExcelPro, just "
    "dble click on it for the show.",
    "Special Windows 8: the true files created are stored in the programme directory of the Virtual Store "
    "located at : \"C:\\Users\\...\\AppData\\Local\\VirtualStore\\...\"",
    "   Click on   OK    to run the    Demo  ! ",
};

constexpr Page kPages[kHelpPages] = {
    {"1/4", kFirstPage}, {"2/4", kSecondPage}, {"31/4", kThirdPage}, {"4/4", kFourthPage}};

std::string WithYears(const std::string& title) {
  const int year = CurrentDesktop().Year();
  const std::string first = title + "  " + std::to_string(kFirstYear);
  return year > kFirstYear ? first + "-" + std::to_string(year) : first;
}

}  // namespace

std::string HelpTitle(int page) {
  return WithYears(kPages[page - 1].number + std::string(" ") + kProgram);
}

std::string HelpText(int page) {
  std::string text;
  for (const char* paragraph : kPages[page - 1].paragraphs) {
    if (!text.empty()) text += '\n';
    text += paragraph;
  }
  return text;
}

std::string AboutTitle() {
  return WithYears(kProgram);
}

std::string AboutText() {
  return "Release QuorbExcelPro: " + VersionDigits + "\n\n" + kTagLine;
}

}  // namespace quorb
