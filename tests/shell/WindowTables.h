#pragma once

#include <string>
#include <vector>

namespace quorb {

/// What a control of the window shows when it has just been made. `value` is the text of a field, the number
/// of a check box, a bar or a two-state button.
struct DesignRow {
  std::string name, caption, value, toolTip;
  bool visible = true;
};

/// The checks of the option panel.
inline std::vector<DesignRow> CheckRows() {
  return {
      {"Check1(0)", "no Plot Earth...", "0", "", true},
      {"Check1(1)", "no Colour Axis X", "0", "", true},
      {"Check1(2)", "Large Characters ", "0", "", true},
      {"Check1(3)", "no Plot Axis", "0", "", true},
      {"Check1(4)", "no Logo Label ", "0", "", true},
      {"Check1(5)", "no Origin Label", "0", "", true},
      {"Check1(6)", "no Time Moving", "0", "", true},
      {"Check1(7)", "Interactive", "0",
       "Interactivity with Excel : takes into account immediately the changes in the worksheet. Save you "
       "worksheet before!",
       true},
      {"Check1(8)", "Moon x10", "1",
       "By default the moon is shown (in ISO scal Mode) with an amplification factor of 10. Uncheck for "
       "having "
       "the real size.",
       true},
      {"Check1(9)", "No Sun ray", "0",
       "By default the sun ray is displayed on Earth. Check here to avoid this feature. Click here sereral "
       "times "
       "to increase or decrease the length...",
       true},
      {"Check1(10)", "Earth-moon", "0", "Trajectory in the rotating Earth-Moon system", false},
      {"Check2", "Ext Change colours", "0",
       "Extended window for additional features: colours, and other settings", true},
      {"Check3", "Satellite", "0", "", true},
      {"Check4", "Solar panel", "0", "", false},
      {"Check5", "Valz", "0",
       "Check here to display a coloured trajectory according to Valz values instead bars along one axis...",
       false},
      {"Check6", "Sat. Axis", "1", "Shows the local satellite axis Xsat Red,  Ysat  Green and  Zsat Blue",
       false},
      {"Check7", "white", "0",
       "Save current colors and switch to white one. Uncheck to come back to the current colors saved.",
       true},
      {"Check8", "thrusters", "0", "Thrusters location x y z (n times)  and orientation x y z  (n times)",
       true},
      {"Check9", "Cubic View", "0",
       "Check here to display the 3 bottom face of a cube with projection trajectories on them. Try IT !",
       true},
      {"Check10", "m", "0",
       "If Earth is too big or too small, check it (For ascent compatibility, sometimes it is needed to to "
       "use m "
       "instead of km)",
       true},
      {"Check11", "Only thrust or Whole orbit", "0",
       "Valz values : Check here for whole orbit, else only for thrust periods", false},
  };
}

/// The fields, buttons and the bar of the option panel.
inline std::vector<DesignRow> PanelRows() {
  return {
      {"Options", "Options", "", "", false},
      {"Combo2", "", "GEO satcom",
       "Select the shape of Satellite or Launcher with the number of solar arrays, etc.", true},
      {"Text4(0)", "", "1", "0.01 to 15", true},
      {"Text4(1)", "", "1", "factor to reduce the axis lenght 0.01 to 15", true},
      {"Text4(2)", "", "1", "0.01 to 15", true},
      {"Text4(3)", "", "1", "factor to reduce the position of the labels    0.01 to 15", true},
      {"Text4(4)", "", "1.5",
       "Used to set the 3 faces of the Cubic view (opposite to the positive axis),  set the axis lenght "
       "factor",
       false},
      {"Text5(0)", "", "40", "", false},
      {"Text5(1)", "", "80", "", false},
      {"Text5(2)", "", "120", "", false},
      {"Text5(3)", "", "128", "", false},
      {"Text5(4)", "", "128", "", false},
      {"Text5(5)", "", "128", "", false},
      {"Text5(6)", "", "0", "", false},
      {"Text5(7)", "", "255", "", false},
      {"Text5(8)", "", "0", "", false},
      {"Text5(9)", "", "255", "", false},
      {"Text5(10)", "", "0", "", false},
      {"Text5(11)", "", "0", "", false},
      {"Text5(12)", "", "50", "", false},
      {"Text5(13)", "", "100", "", false},
      {"Text5(14)", "", "150", "", false},
      {"Text5(15)", "", "10", "", false},
      {"Text5(16)", "", "20", "", false},
      {"Text5(17)", "", "70", "", false},
      {"Text6", "", "", "Write the location, example:  C:\\", true},
      {"Text7", "", "Earthgeo.jpg", "", true},
      {"Text8", "", "Moonjpg.jpg", "", true},
      {"Text9", "", "MAX", "", false},
      {"Text13", "", "", "", false},
      {"Text15", "", "km", "", true},
      {"Label1(0)", "Thickness LinePlot ", "", "", true},
      {"Label1(1)", "Length Axis Factor", "", "", true},
      {"Label1(2)", "Thickness LineAxis", "", "", true},
      {"Label1(3)", "X,Y,Z position Factor", "", "", true},
      {"Label1(4)", "Colour of : ", "", "", false},
      {"Label1(5)", "Axis labels", "", "", false},
      {"Label1(6)", "Axis", "", "", false},
      {"Label1(7)", "Plot Nominal", "", "", false},
      {"Label1(8)", "Plot Events", "", "", false},
      {"Label1(9)", "Sphere", "", "", false},
      {"Label1(10)", "BackGround", "", "", false},
      {"Label1(11)", "Directory for the images saved", "", "", true},
      {"Label1(12)", "Satellite  size", "", "", false},
      {"Label1(13)", "Main KEYWORD Excel", "", "", false},
      {"HScroll3", "", "0", "", false},
      {"Command1", "Save", "",
       "Click to immediately take into account the changes, and saving its for the next time.", true},
      {"Command2", "Close", "", "Use the new settings and close that window,  without saving the changes.",
       true},
      {"Command3", "Factory Settings", "", "Clear the previous setting without saving the changes.", true},
  };
}

/// The window itself, and the panel "To run in PowerPoint".
inline std::vector<DesignRow> FrameRows() {
  return {
      {"frmMain", "", "", "", true},
      {"glxCtl1", "", "", "", true},
      {"Toolbar1", "", "", "", true},
      {"ToolBoptions", "", "", "", true},
      {"StatusBar1", "", "", "", true},
      {"ProgressBar1", "", "0", "", true},
      {"Combo1", "", "",
       "By default, the specification is taken from Excel. When none, please write here the spec like "
       "\"=MAX(A2:C60)\" and  press the Enter Key.",
       true},
      {"TextTempo", "", "", "", false},
      {"Text14", "", "", "", true},
      {"Text20", "", "", "", false},
      {"Text21", "", "", "", true},
      {"Command6", "Run Demo", "", "", false},
      {"Command8", "IconList", "", "", false},
      {"Command9", "IconList", "", "", false},
      {"Frame1", "To run in PowerPoint", "", "", false},
      {"Text1", "", "", "", true},
      {"Command4", "Copy to the clipboard", "", "", true},
      {"Command5", "Close this window", "", "", true},
      {"Picture1(0)", "", "", "", true},
      {"Picture1(1)", "", "", "", true},
      {"Label2(0)", "Copy the command line for a PowerPoint presentation :", "", "", true},
      {"Label2(1)",
       "In your PowerPoint presentation , Right Click on the image or on the border of a non empty text box "
       "you "
       "select. Choose Action parameter in the folder click with the mouse, check the option execute "
       "programme : "
       "and JUST PASTE it in the text zone. It's all.",
       "", "", true},
      {"Label2(2)",
       "During your presentation , enjoy to run QuorbExcelPro from powerpoint by a click on the image or "
       "text box "
       "you have selected.",
       "", "", true},
      {"Label2(3)",
       "Please note that in Windows 8 the location  is automatically forwarded to the so called Virtual "
       "store "
       "(where the true files are stored): \"C:\\Users\\...\\AppData\\Local\\VirtualStore\\...\", so do not "
       "worry... It works fine!                    You can use the virtual store files, move, copy paste in "
       "any "
       "other location you may prefer.",
       "", "", true},
      {"Label2(4)",
       "Please note also that all files with extension \".qbv\" is associated to QuorbExcelPro. You can also "
       " just "
       "dble click on it during the show",
       "", "", true},
  };
}

/// The strip below the plot.
inline std::vector<DesignRow> StripRows() {
  return {
      {"HScroll1", "", "10000", "", true},
      {"HScroll2", "", "9", "", true},
      {"HScroll4", "", "0", "", true},
      {"HScroll5", "", "1000", "", false},
      {"HScroll6", "", "9", "", false},
      {"HScroll7", "", "1", "", true},
      {"HScroll8", "", "10000", "", true},
      {"HScroll10", "", "10000", "", true},
      {"Text2", "Redraw speed", "", "Increase or decrease the speed of the dynamic plot", true},
      {"Text3", "Redraw", "",
       "Redraw  feature: new dynamic plot redrawn from the point you select up to the last one", true},
      {"Text10", "Starting", "", "Starting feature: Trace start from the point you select", true},
      {"Text11", "Movie", "", "Movie feature: number of frames", false},
      {"Text12", "Time between frames", "", "Increase or decrease the time between frame for movie", false},
      {"Text16", "CubicView range and Axis length", "", "", true},
      {"Text18", "Size satellite", "", "", true},
      {"Command7", "View local", "",
       "Use a trajectory point (set by the scroll bar) as centre instead of the origin 0,0,0.  For "
       "continuous "
       "moving press the key W while this command has the focus. press again W for coming back",
       true},
  };
}

/// The movie window before its first show.
inline std::vector<DesignRow> MovieRows() {
  return {
      {"frmVideo", "Movie sequence", "", "", false},
      {"HScroll1", "", "900", "", true},
      {"HScroll2", "", "5", "", true},
      {"Label1", "Period ", "", "", true},
      {"Label2", "Number of frames", "", "", true},
      {"Check1", "simulation model time", "0",
       "check for making video wrt the plot which can be quite high, not wrt the computer timer", true},
      {"Text1", "", "", "", true},
      {"Text2", "", "", "", true},
      {"Text3", "", "", "", true},
      {"Command1", "Start/Restart Video", "", "", true},
      {"Command2", "Pause Video", "", "", true},
      {"Command3", "End Video", "", "", true},
  };
}

/// The file chooser. Its text fields for the caller, and its view for a printer, are not shown.
inline std::vector<DesignRow> ChooserRows() {
  return {
      {"frmDialog", "Explorer tree", "", "", false},
      {"Cadre1", "", "", "", true},
      {"Lecteur1", "", "", "", true},
      {"Répertoire1", "", "", "", true},
      {"Fichier1", "", "", "", true},
      {"ListeModifiable1", "", "", "", false},
      {"driveLabel", "Drive", "", "", true},
      {"directoryLabel", "Sub directory", "", "", true},
      {"fileLabel", "File Name", "", "", true},
      {"filterLabel", "File type", "", "", true},
      {"InitDir", "", "", "", false},
      {"InitJustDir", "", "", "", false},
      {"Filename", "", "", "", true},
      {"Filter", "", "*.*", "", true},
      {"Text1", "", "", "", true},
      {"Action", "", "0", "", false},
      {"Commande1", "OK", "", "", true},
      {"Commande2", "Cancel", "", "", true},
      {"Cadre2", "", "", "", false},
      {"Lecteur2", "", "", "", true},
      {"Répertoire2", "", "", "", true},
      {"Fichier2", "", "", "", true},
      {"Commande3", "", "", "", true},
      {"Commande4", "", "", "", true},
      {"PrinterDefault", "", "0", "", true},
      {"Texte2", "", "", "", true},
      {"Texte3", "", "", "", true},
  };
}

}  // namespace quorb
