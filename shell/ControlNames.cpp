#include "ControlNames.h"

#include <array>
#include <cstddef>

#include "frmDialog.h"
#include "frmVideo.h"

namespace quorb {

namespace {

using Names = std::vector<NamedControl>;

std::string WithIndex(const std::string& name, std::size_t index) {
  return name + "(" + std::to_string(index) + ")";
}

template <typename T, std::size_t Count>
void AddArray(Names& names, const std::string& name, std::array<T, Count>& controls) {
  for (std::size_t i = 0; i < Count; ++i)
    names.push_back({WithIndex(name, i), &controls[i]});
}

void AddBar(Names& names, const std::string& name, ToolBar& bar) {
  names.push_back({name, &bar});
  for (int position = 1; position <= bar.Positions(); ++position)
    names.push_back({WithIndex(name, static_cast<std::size_t>(position)), &bar.Button(position)});
}

void AddFrame(Names& names, MainWindow& window) {
  AddBar(names, "Toolbar1", window.Toolbar1);
  AddBar(names, "ToolBoptions", window.ToolBoptions);
  names.insert(names.end(), {{"frmMain", &window.form},
                             {"glxCtl1", &window.GlPlace},
                             {"StatusBar1", &window.StatusBar1},
                             {"ProgressBar1", &window.ProgressBar1},
                             {"Combo1", &window.Combo1},
                             {"TextTempo", &window.TextTempo},
                             {"Text14", &window.Text14},
                             {"Text20", &window.Text20},
                             {"Text21", &window.Text21},
                             {"Command6", &window.Command6},
                             {"Command7", &window.Command7},
                             {"Command8", &window.Command8},
                             {"Command9", &window.Command9},
                             {"Frame1", &window.Frame1},
                             {"Text1", &window.Text1},
                             {"Command4", &window.Command4},
                             {"Command5", &window.Command5},
                             {"Options", &window.Options}});
  AddArray(names, "Picture1", window.Picture1);
  AddArray(names, "Label2", window.Label2);
}

void AddPanel(Names& names, MainWindow& window) {
  AddArray(names, "Check1", window.Check1);
  AddArray(names, "Text4", window.Text4);
  AddArray(names, "Text5", window.Text5);
  AddArray(names, "Label1", window.Label1);
  names.insert(
      names.end(),
      {{"Check2", &window.Check2},     {"Check3", &window.Check3},     {"Check4", &window.Check4},
       {"Check5", &window.Check5},     {"Check6", &window.Check6},     {"Check7", &window.Check7},
       {"Check8", &window.Check8},     {"Check9", &window.Check9},     {"Check10", &window.Check10},
       {"Check11", &window.Check11},   {"Combo2", &window.Combo2},     {"Text6", &window.Text6},
       {"Text7", &window.Text7},       {"Text8", &window.Text8},       {"Text9", &window.Text9},
       {"Text13", &window.Text13},     {"Text15", &window.Text15},     {"HScroll3", &window.HScroll3},
       {"Command1", &window.Command1}, {"Command2", &window.Command2}, {"Command3", &window.Command3}});
}

void AddStrip(Names& names, MainWindow& window) {
  names.insert(names.end(), {{"HScroll1", &window.HScroll1},
                             {"HScroll2", &window.HScroll2},
                             {"HScroll4", &window.HScroll4},
                             {"HScroll5", &window.HScroll5},
                             {"HScroll6", &window.HScroll6},
                             {"HScroll7", &window.HScroll7},
                             {"HScroll8", &window.HScroll8},
                             {"HScroll10", &window.HScroll10},
                             {"Text2", &window.Text2},
                             {"Text3", &window.Text3},
                             {"Text10", &window.Text10},
                             {"Text11", &window.Text11},
                             {"Text12", &window.Text12},
                             {"Text16", &window.Text16},
                             {"Text18", &window.Text18}});
}

void AddMenus(Names& names, MainWindow& window) {
  names.insert(names.end(), {{"mnuFile", &window.mnuFile},
                             {"mnuFOpen", &window.mnuFOpen},
                             {"mnuFSaveAs", &window.mnuFSaveAs},
                             {"mnuFMovieSaveAs", &window.mnuFMovieSaveAs},
                             {"mnuFRunPowerPoint", &window.mnuFRunPowerPoint},
                             {"mnuFSep1", &window.mnuFSep1},
                             {"mnuFOptions", &window.mnuFOptions},
                             {"mnuFPrint", &window.mnuFPrint},
                             {"mnuFSep2", &window.mnuFSep2},
                             {"mnuFExit", &window.mnuFExit},
                             {"mnuEdit", &window.mnuEdit},
                             {"mnuEMove", &window.mnuEMove},
                             {"mnuERotate", &window.mnuERotate},
                             {"mnuEScale", &window.mnuEScale},
                             {"mnuESep1", &window.mnuESep1},
                             {"mnuEDelete", &window.mnuEDelete},
                             {"mnuESep2", &window.mnuESep2},
                             {"mnuEProperties", &window.mnuEProperties},
                             {"mnuOptions", &window.mnuOptions},
                             {"mnuOinteractive", &window.mnuOinteractive},
                             {"mnuView", &window.mnuView},
                             {"mnuVGrids", &window.mnuVGrids},
                             {"mnuVCam", &window.mnuVCam},
                             {"mnuVReset", &window.mnuVReset},
                             {"mnuVSep1", &window.mnuVSep1},
                             {"mnuVView", &window.mnuVView},
                             {"mnuVVPerspective", &window.mnuVVPerspective},
                             {"mnuVVTop", &window.mnuVVTop},
                             {"mnuVVLeft", &window.mnuVVLeft},
                             {"mnuVVFront", &window.mnuVVFront},
                             {"mnuHelp", &window.mnuHelp},
                             {"mnuHContents", &window.mnuHContents},
                             {"mnuHSep1", &window.mnuHSep1},
                             {"mnuHAbout", &window.mnuHAbout},
                             {"mnuUpdateExcel", &window.mnuUpdateExcel}});
}

}  // namespace

std::vector<NamedControl> NamedControls(MainWindow& window) {
  Names names;
  AddFrame(names, window);
  AddPanel(names, window);
  AddStrip(names, window);
  AddMenus(names, window);
  return names;
}

std::vector<NamedControl> NamedControls(VideoWindow& window) {
  return {{"frmVideo", &window.form},     {"HScroll1", &window.HScroll1}, {"HScroll2", &window.HScroll2},
          {"Label1", &window.Label1},     {"Label2", &window.Label2},     {"Check1", &window.Check1},
          {"Text1", &window.Text1},       {"Text2", &window.Text2},       {"Text3", &window.Text3},
          {"Command1", &window.Command1}, {"Command2", &window.Command2}, {"Command3", &window.Command3}};
}

std::vector<NamedControl> NamedControls(DialogWindow& window) {
  return {{"frmDialog", &window.form},
          {"Cadre1", &window.Cadre1},
          {"Lecteur1", &window.Lecteur1},
          {"Répertoire1", &window.Répertoire1},
          {"Fichier1", &window.Fichier1},
          {"ListeModifiable1", &window.ListeModifiable1},
          {"driveLabel", &window.driveLabel},
          {"directoryLabel", &window.directoryLabel},
          {"fileLabel", &window.fileLabel},
          {"filterLabel", &window.filterLabel},
          {"InitDir", &window.InitDir},
          {"InitJustDir", &window.InitJustDir},
          {"Filename", &window.Filename},
          {"Filter", &window.Filter},
          {"Text1", &window.Text1},
          {"Action", &window.Action},
          {"Commande1", &window.Commande1},
          {"Commande2", &window.Commande2},
          {"Cadre2", &window.Cadre2},
          {"Lecteur2", &window.Lecteur2},
          {"Répertoire2", &window.Répertoire2},
          {"Fichier2", &window.Fichier2},
          {"Commande3", &window.Commande3},
          {"Commande4", &window.Commande4},
          {"PrinterDefault", &window.PrinterDefault},
          {"Texte2", &window.Texte2},
          {"Texte3", &window.Texte3}};
}

}  // namespace quorb
