#include <GL/gl.h>

#include "ClassGl.h"

namespace quorb {

namespace {

void Vertex(double x, double y, double z) {
  glVertex3f(static_cast<GLfloat>(x), static_cast<GLfloat>(y), static_cast<GLfloat>(z));
}

/// The four sides of a square, each as a line; `place` puts its two coordinates into the face.
template <typename Place>
void DrawSquare(double l, Place place) {
  const double corners[5][2] = {{l, l}, {l, -l}, {-l, -l}, {-l, l}, {l, l}};
  glBegin(GL_LINES);
  for (int side = 0; side < 4; ++side) {
    place(corners[side][0], corners[side][1]);
    place(corners[side + 1][0], corners[side + 1][1]);
  }
  glEnd();
}

}  // namespace

void ClassGl::DrawCubic(const NumberTable<5>& table, double faceX, double faceY, double faceZ,
                        std::int64_t row, double sizeBefore, double sizeAfter) {
  if (!NumberTable<5>::Holds(row)) return;
  const double* point = table[row];
  glPointSize(static_cast<GLfloat>(sizeBefore));
  Vertex(faceX, point[2], point[3]);
  Vertex(point[1], faceY, point[3]);
  Vertex(point[1], point[2], faceZ);
  glPointSize(static_cast<GLfloat>(sizeAfter));
}

void ClassGl::DrawAxisCubic(double width, double length) {
  glLineWidth(static_cast<GLfloat>(width));
  glColor3f(0.3F, 0.3F, 0.3F);
  DrawSquare(length, [length](double u, double v) { Vertex(u, v, -length); });
  DrawSquare(length, [length](double u, double v) { Vertex(u, -length, v); });
  DrawSquare(length, [length](double u, double v) { Vertex(-length, u, v); });
}

}  // namespace quorb
