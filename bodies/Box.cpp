#include "Box.h"

#include <GL/gl.h>

#include <cstddef>
#include <cstdlib>

#include "ClassGl.h"

namespace quorb {

namespace {

// Signs of the four corners of a side along its two axes. A negative side takes them the other way round, so
// that it is wound as seen from outside, too.
constexpr int kBoxCornerA[4] = {1, -1, -1, 1};
constexpr int kBoxCornerB[4] = {1, 1, -1, -1};

}  // namespace

void face(int k, double a, double b, double c) {
  const int axis = std::abs(k);
  if (axis < 1 || axis > 3) return;
  const auto n = static_cast<std::size_t>(axis - 1);
  const std::size_t u = (n + 1) % 3;
  const std::size_t v = (n + 2) % 3;
  const auto& cornersU = k > 0 ? kBoxCornerA : kBoxCornerB;
  const auto& cornersV = k > 0 ? kBoxCornerB : kBoxCornerA;
  glBegin(GL_POLYGON);
  for (std::size_t i = 0; i < 4; ++i) {
    double point[3];
    point[n] = SignOf(k) * a;
    point[u] = b * cornersU[i];
    point[v] = c * cornersV[i];
    ClassGl::glVertex3fColor(point[0], point[1], point[2]);
  }
  glEnd();
}

void monolythe(double a, double b, double c) {
  face(-1, a, b, c);
  face(1, a, b, c);
  face(-2, b, c, a);
  face(2, b, c, a);
  face(-3, c, a, b);
  face(3, c, a, b);
}

void monolitheNonCenter(double a, double b, double c, double ox, double oy, double oz) {
  GLfloat x = 0, y = 0, z = 0;
  if (ox == 0 && oy == 0) {
    z = static_cast<GLfloat>(2 * oz + SignOf(oz) * c);
  } else if (ox == 0 && oz == 0) {
    y = static_cast<GLfloat>(2 * oy + SignOf(oy) * b);
  } else if (oy == 0 && oz == 0) {
    x = static_cast<GLfloat>(2 * ox + SignOf(ox) * a);
  }
  glTranslatef(x, y, z);
  monolythe(a, b, c);
  glTranslatef(-x, -y, -z);
}

}  // namespace quorb
