#include <GL/gl.h>

#include "ClassGl.h"
#include "PlotData.h"
#include "SceneColour.h"
#include "UserFlag.h"
#include "WholeNumber.h"

namespace quorb {

namespace {

constexpr double kWallLineWidth = 0.1;
/// The Z axis of the branded look is this much longer.
constexpr double kBrandedZFactor = 1.5;
constexpr float kAxisEndAlpha = 0.6F;

void DrawLine(double x, double y, double z) {
  glVertex3f(0, 0, 0);
  glVertex3f(static_cast<GLfloat>(x), static_cast<GLfloat>(y), static_cast<GLfloat>(z));
}

void DrawAxisLines(double length) {
  const OptionColour& colour = USERFLAG.ColourAxis;
  glBegin(GL_LINES);
  glColor3f(static_cast<GLfloat>(colour.red / kColourDivisor),
            static_cast<GLfloat>(colour.green / kColourDivisor),
            static_cast<GLfloat>(colour.blue / kColourDivisor));
  DrawLine(0, 0, USERFLAG.LogoScale != 0 ? kBrandedZFactor * length : length);
  DrawLine(0, length, 0);
  if (USERFLAG.NoColourAxisX == 0) glColor3f(1, 1, 0);
  DrawLine(length, 0, 0);
  glEnd();
}

/// Everything behind the axes of the next frame is seen from a point of the trajectory.
void MoveToLocalCentre(std::int32_t lastRow) {
  std::int32_t row = -1;
  AssignRounded(row, USERFLAG.LocalCentreIndex);
  if (row == -1) row = lastRow;
  if (!dataXYZT.Holds(row)) return;
  const double* point = dataXYZT[row] + 1;
  glTranslatef(static_cast<GLfloat>(-point[0]), static_cast<GLfloat>(-point[1]),
               static_cast<GLfloat>(-point[2]));
}

}  // namespace

// The axes lag one frame: the list of the frame before is shown, then made anew under a new number.
void ClassGl::DrawAxes() {
  if (glLISTE.Axes != 0) {
    glCallList(glLISTE.Axes);
    Host.ReturnList(glLISTE.Axes);
  }
  glLISTE.Axes = glGenLists(1);
  glNewList(glLISTE.Axes, GL_COMPILE);
  if (USERFLAG.NoPlotAxis == 1) {
    glBegin(GL_LINES);
    glEnd();
    glEndList();
    return;
  }
  const double length = AxisLength();
  DrawAxisLines(length);
  if (USERFLAG.CubicView == 1.0) DrawAxisCubic(kWallLineWidth, length);
  if (USERFLAG.NoColourAxisX == 0) glColor3f(1, 1, 0);
  if (USERFLAG.NedInput == 1.0) MoveToLocalCentre(CURRINDEXI);
  glEndList();
}

void ClassGl::AddAxisFromCenter(double width, float r1, float g1, float b1, float r2, float g2, float b2,
                                double dx, double dy, double dz) {
  glNewList(glLISTE.AddAxis, GL_COMPILE);
  glLineWidth(static_cast<GLfloat>(width));
  glColor3f(r1, g1, b1);
  glBegin(GL_LINE_STRIP);
  glVertex3f(0, 0, 0);
  glColor4f(r2, g2, b2, kAxisEndAlpha);
  glVertex3f(static_cast<GLfloat>(dx), static_cast<GLfloat>(dy), static_cast<GLfloat>(dz));
  glEnd();
  glEndList();
  SetAxisWidth();
}

}  // namespace quorb
