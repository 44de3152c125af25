#include "WindowDesign.h"
#include "frmMain.h"

namespace quorb {

namespace {

constexpr double kPanelWidth = 9000, kPanelHeight = 8100;
constexpr std::size_t kBlanksBeforeAdvice = 20;

}  // namespace

void DesignSlideShowPanel(MainWindow& window) {
  window.Frame1.caption = "To run in PowerPoint";
  window.Frame1.visible = false;
  window.Frame1.Width = kPanelWidth;
  window.Frame1.Height = kPanelHeight;
  window.Label2[0].caption = "Copy the command line for a PowerPoint presentation :";
  window.Label2[1].caption =
      "In your PowerPoint presentation , Right Click on the image or on the border of a non empty text box "
      "you "
      "select. Choose Action parameter in the folder click with the mouse, check the option execute "
      "programme "
      ": and JUST PASTE it in the text zone. It's all.";
  window.Label2[2].caption =
      "During your presentation , enjoy to run QuorbExcelPro from powerpoint by a click on the image or text "
      "box you have selected.";
  window.Label2[3].caption =
      "Please note that in Windows 8 the location  is automatically forwarded to the so called Virtual store "
      "(where the true files are stored): \"C:\\Users\\...\\AppData\\Local\\VirtualStore\\...\", so do not "
      "worry... It works fine!" +
      std::string(kBlanksBeforeAdvice, ' ') +
      "You can use the virtual store files, move, copy paste in any other location you may prefer.";
  window.Label2[4].caption =
      "Please note also that all files with extension \".qbv\" is associated to QuorbExcelPro. You can also  "
      "just dble click on it during the show";
  window.Command4.caption = "Copy to the clipboard";
  window.Command5.caption = "Close this window";
  window.Picture1[0].image = "slide-action-menu";
  window.Picture1[1].image = "slide-action-dialog";
}

}  // namespace quorb
