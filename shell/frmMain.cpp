#include "frmMain.h"

#include <cmath>
#include <limits>

#include "Bodies.h"
#include "BodyTextures.h"
#include "CommExcl.h"
#include "Desktop.h"
#include "Dialogs.h"
#include "LoaderLink.h"
#include "NumberPicture.h"
#include "NumberText.h"
#include "OptionBar.h"
#include "OptionPanel.h"
#include "OptionWindow.h"
#include "PlotControls.h"
#include "PlotData.h"
#include "RunState.h"
#include "SatelliteControls.h"
#include "SaveImage.h"
#include "Settings.h"
#include "SettingsStore.h"
#include "SheetControls.h"
#include "SheetWatcher.h"
#include "TextHelpers.h"
#include "ToolbarCommand.h"
#include "ToolbarLayout.h"
#include "UserFlag.h"

namespace quorb {

std::unique_ptr<MainWindow> frmMain;
glCtl* glxCtl1 = nullptr;
std::unique_ptr<ClassGl> TheScene;

int FirstActivated = 0;
int OneShotView = 0;
int ShiftState = 0;
int LastKeyCode = 0;
int LastKeyReleased = 0;
int PlotWidth = 0, PlotHeight = 0;

namespace {

constexpr int kMajor = 2, kMinor = 8, kRevision = 6;
constexpr const char* kDescription =
    "--2.8 0 6p1-- trajectories, attitudes and events of a worksheet in three dimensions";
constexpr const char* kProductWord = "Quorb";
constexpr const char* kTagLine = "a worksheet in three dimensions, live  ";
constexpr int kFirstYear = 1990;
constexpr std::size_t kShortestFileName = 8;

constexpr int kKeyEnter = 13, kKeyPageUp = 33, kKeyPageDown = 34, kKeyLeft = 37, kKeyDown = 40, kKeyI = 73,
              kKeyT = 84;

void BuildVersionDigits() {
  VersionDigits =
      FormatPicture(kMajor, "000") + FormatPicture(kMinor, "000") + FormatPicture(kRevision, "000");
}

std::string FirstToken(const std::string& commandLine) {
  const std::string_view line = Trim(commandLine);
  if (line.starts_with('"')) return std::string(line.substr(1, line.find('"', 1) - 1));
  const char separator = line.find(',') != line.npos ? ',' : ' ';
  return std::string(line.substr(0, line.find(separator)));
}

void ReadCommandLine(const std::string& commandLine) {
  if (CommandFileMode == 1) return;
  CommandFileName = commandLine;
  FILEcOMMANDnAME = FirstToken(commandLine);
  CommandFileMode = CharacterCount(FILEcOMMANDnAME) >= kShortestFileName ? 1 : 0;
}

std::string BuildCaption() {
  const int year = CurrentDesktop().Year();
  if (year < kFirstYear) return kProductWord + std::string(15, ' ') + kTagLine;
  const std::string description = kDescription;
  const std::size_t secondMark = description.find("--", 2);
  const std::string releaseLetters = description.substr(secondMark - 2, 2);
  const std::string head = description.substr(0, secondMark + 3);
  return kProductWord + std::string(2, ' ') + releaseLetters + std::string(8, ' ') + kTagLine +
         std::to_string(year) + std::string(3, ' ') + head;
}

std::string StoredUse(const std::string& key, const std::string& defaultValue) {
  return CurrentSettings().Read(kSectionUse, key, defaultValue);
}

void ReadSingleSettings() {
  MainWindow& window = *frmMain;
  window.Text6.text = StoredUse("SetDirBMP", "");
  window.Text7.text = StoredUse(SingleSettingKey(0), "earthjpg.jpg");
  window.Text8.text = StoredUse(SingleSettingKey(1), "moonjpg.jpg");
  MoonTextureName = window.Text8.text;
  window.Text9.text = StoredUse(SingleSettingKey(2), "MAX");
  AssignNumber(window.HScroll3.value, ValText(StoredUse(SingleSettingKey(3), "64")));
  AssignNumber(window.Check3.value, ValText(StoredUse(SingleSettingKey(4), "0")));
  AssignNumber(window.Check4.value, ValText(StoredUse(SingleSettingKey(5), "0")));
}

void HideWhatIsOff() {
  MainWindow& window = *frmMain;
  if (window.Check3.value == 0) {
    window.HScroll10.visible = false;
    window.Text18.visible = false;
  }
  if (window.Check9.value == 0) {
    window.HScroll8.visible = false;
    window.Text16.visible = false;
  }
}

void ConfirmInteractive() {
  if (frmMain->Check1[7].value != 1) return;
  const std::string nl = NL;
  const std::string prompt = "The current setting is Interactive with Excel. " + nl +
                             "It is recommanded to save your Excel work now. " + nl +
                             "Else click on Cancel to disable the Interactivity." + nl + nl +
                             "Do you want to continue with the Interactivity with Excel ? ";
  if (CurrentDialogs().MessageBox(prompt, "Warning", kBoxOkCancel) != BoxAnswer::cancel) return;
  frmMain->Check1[7].value = 0;
  USERFLAG.InteractiveExcel = 0;
}

void HideMenus() {
  MainWindow& window = *frmMain;
  for (Menu* menu : {&window.mnuFile, &window.mnuEdit, &window.mnuView, &window.mnuHelp,
                     &window.mnuUpdateExcel, &window.mnuOptions}) {
    menu->visible = false;
  }
}

void FillLists() {
  int entries = 0, shapes = 0;
  Combo1_InitList(entries);
  Combo2_InitList(shapes);
}

void LoadOptions() {
  OptionsRead();
  USERFLAGfactory = USERFLAG;
  frmMain->form.caption = BuildCaption();
  CurrentSettings().Write(kSectionApp, "Path", CurrentDesktop().ProgramDirectory());
  int noneStored = 0;
  OptionsLoadSave(0, noneStored);
  ReadSingleSettings();
  HideWhatIsOff();
  Text7_Change();
  if (noneStored == 0) OptionAffecteUser();
  ConfirmInteractive();
  FillLists();
}

void MakeBodies() {
  TextureDirectory = CurrentDesktop().ProgramDirectory();
  TextureLog = [](const std::string& line) { LoaderLinkOfWindow().AppendLog(line); };
  auto bodies = std::make_unique<Bodies>(*TheScene);
  bodies->ShowText15 = [](bool on) { frmMain->Text15.visible = on; };
  TheScene->BodiesShown = std::move(bodies);
}

void StartScene(glCtl& host) {
  glxCtl1 = &host;
  TheScene = std::make_unique<ClassGl>(host);
  MakeBodies();
  TheScene->WatchSheet = [] { WatchSheet(); };
  TheScene->MovieFrameLost = TellMovieFrameLost;
  HScroll1_Change();
  HScroll2_Change();
  TheScene->EditState(static_cast<int>(MouseMode::pan));
  glxCtl1_DblClick();
  host.Animation().SetEnabled(true);
  toolbarSet();
}

// The counter starts anew, so that the press brings the cubic view on whatever the user did before.
void PressCubicView() {
  ToolButton& button = frmMain->ToolBoptions.Button(kCubicButton);
  frmMain->toolbarState.OptionToggles[2] = 0;
  button.SetValue(1);
  ToolBoptions_ButtonClick(button);
}

int WholePixels(double twips) {
  const double pixels = std::floor(twips / kTwipsPerPixel);
  return pixels >= 1 && pixels <= std::numeric_limits<int>::max() ? static_cast<int>(pixels) : 1;
}

}  // namespace

void Form_Load(const std::string& commandLine, glCtl& host) {
  MoonSwitch = 0;
  StartFlag = 1;
  PenUpLabelShow = 1;
  FirstActivated = ShiftState = LastKeyCode = LastKeyReleased = 0;
  OneShotView = 0;
  ImportDirectory = CurrentDesktop().DataDirectory();
  BuildVersionDigits();
  ReadCommandLine(commandLine);
  CreateMainWindow();
  SetSceneWindow(&SceneWindowOfWindow());
  LoadOptions();
  StartScene(host);
  if (CommandFileMode == 1) HideMenus();
}

void Form_Activate() {
  MainWindow& window = *frmMain;
  if (FirstActivated != 1) {
    ImageDirRefresh();
    RestoreToolbarLayout();
    DEJADRAW = DEJARESET = FileMode = 0;
    FirstActivated = 1;  // an activation while the load waits for the user starts no other one
    LoadPlot();
    // Else the first frame would undo the orientation below.
    TheScene->DigestPlot();
  }
  window.Command6.Tag.clear();
  FillLists();
  window.Combo1.Width = 390;
  if (USERFLAG.TimeInData == 0) {
    window.Check3.value = 0;
    window.Check4.value = 0;
  }
  if (LowerText(MessageUserToPlot).find("sat") != std::string::npos) {
    window.Check3.value = 1;
    window.Check4.value = 1;
  }
  if (PenUpMode != 1) PressCubicView();
  window.Text4[4].text = WithDecimalMark("1.75");
  constexpr int kOrientationPresses = 7;
  for (int press = 0; press < kOrientationPresses; ++press)
    Toolbar1_ButtonClick(window.Toolbar1.Button(kOrientationButton));
  LocalFollow = 1;
}

void Form_Resize() {
  MainWindow& window = *frmMain;
  const double barTop = window.Toolbar1.Height;
  const int height = WholePixels(window.form.Height - barTop - window.StatusBar1.Height);
  const int width = WholePixels(window.form.Width);
  window.GlPlace.Left = 0;
  window.GlPlace.Top = barTop;
  window.GlPlace.Width = width * kTwipsPerPixel;
  window.GlPlace.Height = height * kTwipsPerPixel;
  if (glxCtl1 != nullptr) glxCtl1->Redraw();
  const double bottom = barTop + height * kTwipsPerPixel;
  window.Combo1.Top = bottom;
  window.Text14.Top = bottom;
  window.TextTempo.Top = bottom - window.TextTempo.Height;
  window.Command6.Top = bottom - window.TextTempo.Height - window.Command6.Height;
  if (window.Options.visible) BringOptionsInside();
  CurrentDialogs().PumpEvents();
}

void Form_KeyDown(int& KeyCode, int Shift) {
  LastKeyCode = KeyCode;
  LastKeyReleased = 0;
  ShiftState = Shift;
  std::string noButton;
  ToolbarCommand(noButton);
  if (KeyCode == kKeyEnter && frmMain->Options.visible) {
    LastKeyCode = 0;
    Command2_Click();
    return;
  }
  const bool turnsView =
      KeyCode == kKeyPageUp || KeyCode == kKeyPageDown || (KeyCode >= kKeyLeft && KeyCode <= kKeyDown);
  if (turnsView) frmMain->GlPlace.SetFocus();
  if (KeyCode == kKeyI) {
    frmMain->Check9.Tag = Shift == 0 ? "REAL_ISO" : "";
    TheScene->CameraSet("ISONEW", 2, 0);
  }
  if (KeyCode == kKeyT) {
    LocalFollow = 1 - LocalFollow;
    KeyCode = 0;
  }
}

void Form_KeyUp(int, int) {
  LetKeysGo();
}

void LetKeysGo() {
  ShiftState = 0;
  LastKeyReleased = 1;
}

void Form_Unload() {
  CurrentDialogs().EndProgram();
}

}  // namespace quorb
