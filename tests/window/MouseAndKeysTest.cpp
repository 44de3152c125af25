#include <QComboBox>
#include <QLineEdit>
#include <QScrollBar>
#include <sstream>

#include "OpenWindow.h"
#include "VirtualDisplay.h"

namespace quorb {
namespace {

using MouseAndKeys = OpenWindow;

// The window starts at -100 to 100 both ways: 200 units for the pan, so a pixel is half a unit.
TEST_F(MouseAndKeys, ALeftDragPansInTheModeThatTheWindowStartsWith) {
  OpenSmallPlot();
  ExpectWindow(-100, 100, -100, 100);
  Press(Qt::LeftButton, 300, 300);
  MoveTo(310, 292);
  ExpectWindow(-105, 95, -104, 96);
  // Now the window's size counts sqrt(105^2 + 95^2 + 104^2 + 96^2) = 200.20490.
  MoveTo(310, 302);
  ExpectWindow(-105, 95, -98.9948776, 101.0051224);
  Release(Qt::LeftButton, 310, 302);
  MoveTo(400, 400);
  ExpectWindow(-105, 95, -98.9948776, 101.0051224);
}

// The plot reaches 80 units: a step takes an eightieth of the window's size off each side.
TEST_F(MouseAndKeys, ARightDragZoomsInTheModeThatTheWindowStartsWith) {
  OpenSmallPlot();
  Press(Qt::RightButton, 300, 300);
  MoveTo(300, 295);
  ExpectWindow(-97.5, 97.5, -97.5, 97.5);
  MoveTo(320, 298);
  ExpectWindow(-99.9375, 99.9375, -99.9375, 99.9375);
  MoveTo(340, 298);
  Release(Qt::RightButton, 340, 298);
  ExpectWindow(-99.9375, 99.9375, -99.9375, 99.9375);
}

TEST_F(MouseAndKeys, AMoveWithoutAButtonDoesNothing) {
  OpenSmallPlot();
  const std::size_t frames = frameTimes.size();
  MoveTo(300, 300);
  MoveTo(350, 380);
  QTest::qWait(300);
  ExpectWindow(-100, 100, -100, 100);
  EXPECT_EQ(frameTimes.size(), frames);
}

TEST_F(MouseAndKeys, ADragDrawsFrames) {
  OpenSmallPlot();
  const std::size_t frames = frameTimes.size();
  Press(Qt::LeftButton, 300, 300);
  MoveTo(310, 292);
  Release(Qt::LeftButton, 310, 292);
  EXPECT_TRUE(QTest::qWaitFor([&] { return frameTimes.size() > frames; }));
}

TEST_F(MouseAndKeys, InTheModeOrbitALeftDragTurnsTheCameraAboutTheTarget) {
  OpenSmallPlot();
  TheScene->EditState(9);
  glxCtl1->Camera().Look(0, 0, 100, 0, 0, 0, 0, 1, 0);
  Press(Qt::LeftButton, 300, 100);
  MoveTo(300, 100 + plot->height() / 2);
  Release(Qt::LeftButton, 300, 100 + plot->height() / 2);
  // Half the height: 90 degrees. The front goes down, the eye goes to the top.
  ExpectEye(0, 100, 0);
  ExpectWindow(-100, 100, -100, 100);
}

TEST_F(MouseAndKeys, ArrowAndPageKeysTurnTheCamera) {
  OpenSmallPlot();
  HostCamera& camera = glxCtl1->Camera();
  camera.SetPosition(0, 100, 100);
  // 100 cos + 100 sin and 100 cos - 100 sin, with the sine 0.01 and the cosine 0.99995.
  Key(Qt::Key_Left);
  ExpectEye(0, 100.995, 98.995);
  camera.SetPosition(0, 100, 100);
  Key(Qt::Key_Right);
  ExpectEye(0, 98.995, 100.995);
  camera.SetPosition(100, 0, 100);
  Key(Qt::Key_Up);
  ExpectEye(98.995, 0, 100.995);
  camera.SetPosition(100, 0, 100);
  Key(Qt::Key_Down);
  ExpectEye(100.995, 0, 98.995);
  camera.SetPosition(100, 100, 0);
  Key(Qt::Key_PageUp);
  ExpectEye(100.995, 98.995, 0);
  camera.SetPosition(100, 100, 0);
  Key(Qt::Key_PageDown);
  ExpectEye(98.995, 100.995, 0);
}

TEST_F(MouseAndKeys, AnArrowKeyTurnsTheCameraOnceWhenABarHasTheFocus) {
  OpenSmallPlot();
  const int before = frmMain->HScroll2.value;
  for (QScrollBar* bar : window->findChildren<QScrollBar*>()) {
    if (bar->value() == before) bar->setFocus();
  }
  glxCtl1->Camera().SetPosition(0, 100, 100);
  Key(Qt::Key_Left);
  ExpectEye(0, 100.995, 98.995);
  EXPECT_TRUE(plot->hasFocus());
  EXPECT_EQ(frmMain->HScroll2.value, before);
}

TEST_F(MouseAndKeys, ACharacterPutsTheEyeOnTheOrigin) {
  OpenSmallPlot();
  plot->setFocus();
  glxCtl1->Camera().SetUp(0, 0, 1);
  Key(Qt::Key_Q);
  ExpectEye(0, 0, 0);
  float x = 0, y = 0, z = 0;
  glxCtl1->Camera().GetUp(x, y, z);
  EXPECT_EQ(std::vector<float>({x, y, z}), std::vector<float>({0, 1, 0}));
}

TEST_F(MouseAndKeys, TheKeyIInThePlotStepsOnceAndShowsTheView) {
  OpenSmallPlot();
  plot->setFocus();
  TheScene->CameraSteps.RealQuadrant = 0;
  Key(Qt::Key_I);
  EXPECT_EQ(frmMain->Check9.Tag, "REAL_ISO");
  EXPECT_EQ(TheScene->CameraSteps.RealQuadrant, 1);
  ExpectEye(-100, 100, 100);
}

TEST_F(MouseAndKeys, TheKeysOfTheVerticalAxisInThePlotShowTheirView) {
  OpenSmallPlot();
  plot->setFocus();
  for (const Qt::Key key : {Qt::Key_X, Qt::Key_Y, Qt::Key_Z}) {
    Key(key);
    float x = 0, y = 0, z = 0;
    glxCtl1->Camera().GetPosition(x, y, z);
    EXPECT_EQ(std::abs(x), 100) << key;
    EXPECT_EQ(std::abs(y), 100) << key;
    EXPECT_EQ(std::abs(z), 100) << key;
  }
}

TEST_F(MouseAndKeys, InTheModeSelectARightDragTurnsTheCamera) {
  OpenSmallPlot();
  TheScene->EditState(1);
  glxCtl1->Camera().Look(0, 0, 100, 0, 0, 0, 0, 1, 0);
  Press(Qt::RightButton, 300, 100);
  MoveTo(300, 100 + plot->height() / 2);
  Release(Qt::RightButton, 300, 100 + plot->height() / 2);
  ExpectEye(0, 100, 0);
  ExpectWindow(-100, 100, -100, 100);
}

TEST_F(MouseAndKeys, TheKeyIOutsideThePlotStepsOnceAndShowsTheView) {
  OpenSmallPlot();
  window->findChild<QScrollBar*>()->setFocus();
  TheScene->CameraSteps.RealQuadrant = 0;
  Key(Qt::Key_I);
  // Quadrant 1 round the axis Z: A 100, B 100, 100, with A -1 and B 1.
  EXPECT_EQ(TheScene->CameraSteps.RealQuadrant, 1);
  ExpectEye(-100, 100, 100);
}

// Axis 1 upward: the eye goes to a corner, X is up, and the letter is typed.
TEST_F(MouseAndKeys, TheKeyXInTheBoxOfTheSpecificationTurnsTheViewAndIsTyped) {
  OpenSmallPlot();
  QComboBox* const box = window->findChild<QComboBox*>("Combo1");
  ASSERT_NE(box, nullptr);
  box->lineEdit()->setFocus();
  HostCamera& camera = glxCtl1->Camera();
  camera.SetPosition(1, 2, 3);
  camera.SetUp(0, 0, 1);
  Key(Qt::Key_X);
  float x = 0, y = 0, z = 0;
  camera.GetPosition(x, y, z);
  EXPECT_EQ(std::vector<float>({std::abs(x), std::abs(y), std::abs(z)}), std::vector<float>({100, 100, 100}));
  camera.GetUp(x, y, z);
  EXPECT_EQ(std::vector<float>({x, y, z}), std::vector<float>({1, 0, 0}));
  EXPECT_TRUE(box->hasFocus());
  EXPECT_EQ(box->currentText(), "x");
}

TEST_F(MouseAndKeys, KeysWithoutACharacterLeaveTheEye) {
  OpenSmallPlot();
  plot->setFocus();
  glxCtl1->Camera().SetPosition(1, 2, 3);
  for (const Qt::Key key : {Qt::Key_F5, Qt::Key_Home, Qt::Key_Shift, Qt::Key_Delete, Qt::Key_Insert})
    Key(key);
  ExpectEye(1, 2, 3);
}

TEST_F(MouseAndKeys, ADoubleClickStopsTheAnimationAndAnotherOneStartsIt) {
  OpenSmallPlot();
  EXPECT_TRUE(glxCtl1->Animation().Enabled());
  QTest::mouseDClick(window->windowHandle(), Qt::LeftButton, {}, At(300, 300));
  EXPECT_FALSE(glxCtl1->Animation().Enabled());
  EXPECT_EQ(glxCtl1->Tag, "");
  Settle();
  const std::size_t frames = frameTimes.size();
  USERFLAG.ThicknessLinePlot = 5;
  QTest::qWait(500);
  EXPECT_EQ(frameTimes.size(), frames);

  QTest::mouseDClick(window->windowHandle(), Qt::LeftButton, {}, At(500, 500));
  EXPECT_TRUE(glxCtl1->Animation().Enabled());
  EXPECT_EQ(glxCtl1->Tag, "Animate");
  EXPECT_TRUE(QTest::qWaitFor([&] { return frameTimes.size() > frames; }));
}

/// Runs the tool that acts as a user at the display's mouse and keyboard, while the window goes on.
void ActAsUser(const std::string& words) {
  std::vector<std::string> command = {"xdotool"};
  std::stringstream stream(words);
  for (std::string word; stream >> word;)
    command.push_back(word);
  const Background user(command, {});
  EXPECT_TRUE(QTest::qWaitFor([&user] { return !user.Runs(); }, 20000));
  QTest::qWait(100);
}

std::string PlaceText(const QWidget& widget, int x, int y) {
  const QPoint place = widget.mapToGlobal(QPoint(x, y));
  return " " + std::to_string(place.x()) + " " + std::to_string(place.y()) + " ";
}

// One notch is four steps of 1 - 2/80: 100 x 0.975^4.
TEST_F(MouseAndKeys, ANotchOfTheWheelAwayFromTheUserZoomsInByFourSteps) {
  OpenSmallPlot();
  ActAsUser("mousemove" + PlaceText(*plot, 300, 300) + "click 4");
  ExpectWindow(-90.368789, 90.368789, -90.368789, 90.368789);
  // And back by 1 + 2/80: 90.368789 x 1.025^4.
  ActAsUser("click 5");
  ExpectWindow(-99.750156, 99.750156, -99.750156, 99.750156);
}

TEST_F(MouseAndKeys, TheDisplaysOwnMouseAndKeyboardReachTheScene) {
  OpenSmallPlot();
  ActAsUser("mousemove" + PlaceText(*plot, 300, 300) + "mousedown 1 mousemove" + PlaceText(*plot, 310, 292) +
            "mouseup 1");
  ExpectWindow(-105, 95, -104, 96);
  glxCtl1->Camera().SetPosition(0, 100, 100);
  ActAsUser("key Left");
  ExpectEye(0, 100.995, 98.995);
  ActAsUser("key q");
  ExpectEye(0, 0, 0);
  ActAsUser("mousemove" + PlaceText(*plot, 500, 300) + "click --repeat 2 --delay 20 1");
  EXPECT_FALSE(glxCtl1->Animation().Enabled());
}

}  // namespace
}  // namespace quorb
