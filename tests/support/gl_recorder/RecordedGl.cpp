// The OpenGL and GLU functions of the scene, each of which only notes its call.

#include <GL/gl.h>
#include <GL/glu.h>

#include <algorithm>
#include <map>
#include <string>
#include <utility>

#include "GlRecorder.h"

namespace {

using quorb::RecordCallOf;

/// A constant by its name, or as a number.
struct Constant {
  std::string text;
};

std::string ArgumentText(const Constant& constant) {
  return constant.text;
}

Constant Named(GLenum value, const std::map<GLenum, const char*>& names) {
  const auto place = names.find(value);
  return {place == names.end() ? std::to_string(value) : place->second};
}

Constant Primitive(GLenum mode) {
  return Named(mode, {{GL_POINTS, "GL_POINTS"},
                      {GL_LINES, "GL_LINES"},
                      {GL_LINE_LOOP, "GL_LINE_LOOP"},
                      {GL_LINE_STRIP, "GL_LINE_STRIP"},
                      {GL_TRIANGLES, "GL_TRIANGLES"},
                      {GL_TRIANGLE_STRIP, "GL_TRIANGLE_STRIP"},
                      {GL_TRIANGLE_FAN, "GL_TRIANGLE_FAN"},
                      {GL_QUADS, "GL_QUADS"},
                      {GL_QUAD_STRIP, "GL_QUAD_STRIP"},
                      {GL_POLYGON, "GL_POLYGON"}});
}

Constant Symbol(GLenum value) {
  return Named(value, {{GL_FALSE, "GL_FALSE"},
                       {GL_TRUE, "GL_TRUE"},
                       {GL_DEPTH_BUFFER_BIT, "GL_DEPTH_BUFFER_BIT"},
                       {GL_COLOR_BUFFER_BIT, "GL_COLOR_BUFFER_BIT"},
                       {GL_FRONT, "GL_FRONT"},
                       {GL_BACK, "GL_BACK"},
                       {GL_FRONT_AND_BACK, "GL_FRONT_AND_BACK"},
                       {GL_LIGHTING, "GL_LIGHTING"},
                       {GL_COLOR_MATERIAL, "GL_COLOR_MATERIAL"},
                       {GL_BLEND, "GL_BLEND"},
                       {GL_CULL_FACE, "GL_CULL_FACE"},
                       {GL_DEPTH_TEST, "GL_DEPTH_TEST"},
                       {GL_POLYGON_OFFSET_FILL, "GL_POLYGON_OFFSET_FILL"},
                       {GL_TEXTURE_2D, "GL_TEXTURE_2D"},
                       {GL_MAP1_VERTEX_3, "GL_MAP1_VERTEX_3"},
                       {GL_FLAT, "GL_FLAT"},
                       {GL_SMOOTH, "GL_SMOOTH"},
                       {GL_SPECULAR, "GL_SPECULAR"},
                       {GL_POSITION, "GL_POSITION"},
                       {GL_AMBIENT, "GL_AMBIENT"},
                       {GL_DIFFUSE, "GL_DIFFUSE"},
                       {GL_AMBIENT_AND_DIFFUSE, "GL_AMBIENT_AND_DIFFUSE"},
                       {GL_COMPILE, "GL_COMPILE"},
                       {GL_COMPILE_AND_EXECUTE, "GL_COMPILE_AND_EXECUTE"},
                       {GL_MODELVIEW, "GL_MODELVIEW"},
                       {GL_PROJECTION, "GL_PROJECTION"},
                       {GL_TEXTURE, "GL_TEXTURE"},
                       {GL_VIEWPORT, "GL_VIEWPORT"},
                       {GL_PACK_ALIGNMENT, "GL_PACK_ALIGNMENT"},
                       {GL_UNPACK_ALIGNMENT, "GL_UNPACK_ALIGNMENT"},
                       {GL_UNPACK_SKIP_ROWS, "GL_UNPACK_SKIP_ROWS"},
                       {GL_UNPACK_SKIP_PIXELS, "GL_UNPACK_SKIP_PIXELS"},
                       {GL_UNPACK_ROW_LENGTH, "GL_UNPACK_ROW_LENGTH"},
                       {GL_RGB, "GL_RGB"},
                       {GL_RGBA, "GL_RGBA"},
                       {GL_BGR, "GL_BGR"},
                       {GL_BGRA, "GL_BGRA"},
                       {GL_UNSIGNED_BYTE, "GL_UNSIGNED_BYTE"},
                       {GLU_ERROR, "GLU_ERROR"}});
}

/// What glEnable switches. The first light has the number of another constant.
Constant Capability(GLenum value) {
  return value == GL_LIGHT0 ? Constant{"GL_LIGHT0"} : Symbol(value);
}

GLuint nextList = 1;
char quadricStorage;

struct View {
  int width = 0, height = 0;
  quorb::PixelColours colourAt;
};
View view;

}  // namespace

namespace quorb {

void SetView(int width, int height, PixelColours colourAt) {
  view = {width, height, std::move(colourAt)};
}

void ForgetView() {
  view = {};
}

}  // namespace quorb

extern "C" {

void glBegin(GLenum mode) {
  RecordCallOf("glBegin", Primitive(mode));
}
void glEnd() {
  RecordCallOf("glEnd");
}
void glVertex3f(GLfloat x, GLfloat y, GLfloat z) {
  RecordCallOf("glVertex3f", x, y, z);
}
void glNormal3f(GLfloat x, GLfloat y, GLfloat z) {
  RecordCallOf("glNormal3f", x, y, z);
}
void glColor3f(GLfloat red, GLfloat green, GLfloat blue) {
  RecordCallOf("glColor3f", red, green, blue);
}
void glColor4f(GLfloat red, GLfloat green, GLfloat blue, GLfloat alpha) {
  RecordCallOf("glColor4f", red, green, blue, alpha);
}
void glLineWidth(GLfloat width) {
  RecordCallOf("glLineWidth", width);
}
void glPointSize(GLfloat size) {
  RecordCallOf("glPointSize", size);
}

void glNewList(GLuint list, GLenum mode) {
  RecordCallOf("glNewList", list, Symbol(mode));
}
void glEndList() {
  RecordCallOf("glEndList");
}
void glDeleteLists(GLuint list, GLsizei range) {
  RecordCallOf("glDeleteLists", list, range);
}
void glCallList(GLuint list) {
  RecordCallOf("glCallList", list);
}
GLuint glGenLists(GLsizei range) {
  RecordCallOf("glGenLists", range);
  const GLuint first = nextList;
  nextList += static_cast<GLuint>(range);
  return first;
}

void glMatrixMode(GLenum mode) {
  RecordCallOf("glMatrixMode", Symbol(mode));
}
void glPushMatrix() {
  RecordCallOf("glPushMatrix");
}
void glPopMatrix() {
  RecordCallOf("glPopMatrix");
}
void glTranslatef(GLfloat x, GLfloat y, GLfloat z) {
  RecordCallOf("glTranslatef", x, y, z);
}
void glRotatef(GLfloat angle, GLfloat x, GLfloat y, GLfloat z) {
  RecordCallOf("glRotatef", angle, x, y, z);
}
void glScalef(GLfloat x, GLfloat y, GLfloat z) {
  RecordCallOf("glScalef", x, y, z);
}

void glClear(GLbitfield mask) {
  RecordCallOf("glClear", Symbol(mask));
}
void glClearColor(GLclampf red, GLclampf green, GLclampf blue, GLclampf alpha) {
  RecordCallOf("glClearColor", red, green, blue, alpha);
}
void glClearDepth(GLclampd depth) {
  RecordCallOf("glClearDepth", depth);
}
void glEnable(GLenum cap) {
  RecordCallOf("glEnable", Capability(cap));
}
void glDisable(GLenum cap) {
  RecordCallOf("glDisable", Capability(cap));
}
void glPolygonOffset(GLfloat factor, GLfloat units) {
  RecordCallOf("glPolygonOffset", factor, units);
}
void glShadeModel(GLenum mode) {
  RecordCallOf("glShadeModel", Symbol(mode));
}
void glLoadIdentity() {
  RecordCallOf("glLoadIdentity");
}
void glLightfv(GLenum light, GLenum pname, const GLfloat* params) {
  RecordCallOf("glLightfv", Capability(light), Symbol(pname), params[0], params[1], params[2], params[3]);
}
void glColorMaterial(GLenum face, GLenum mode) {
  RecordCallOf("glColorMaterial", Symbol(face), Symbol(mode));
}

void glGetIntegerv(GLenum pname, GLint* params) {
  RecordCallOf("glGetIntegerv", Symbol(pname));
  if (pname != GL_VIEWPORT || !view.colourAt) return;
  params[0] = 0;
  params[1] = 0;
  params[2] = view.width;
  params[3] = view.height;
}
void glPixelStorei(GLenum pname, GLint param) {
  RecordCallOf("glPixelStorei", Symbol(pname), param);
}
void glReadPixels(GLint x, GLint y, GLsizei width, GLsizei height, GLenum format, GLenum type,
                  GLvoid* pixels) {
  RecordCallOf("glReadPixels", x, y, width, height, Symbol(format), Symbol(type));
  if (!view.colourAt || format != GL_RGB) return;
  const int rowBytes = (3 * width + 3) / 4 * 4;
  for (int row = 0; row < height; ++row) {
    auto* target = static_cast<std::uint8_t*>(pixels) + row * rowBytes;
    for (int column = 0; column < width; ++column, target += 3)
      std::ranges::copy(view.colourAt(x + column, y + row), target);
  }
}

GLUquadric* gluNewQuadric() {
  RecordCallOf("gluNewQuadric");
  return reinterpret_cast<GLUquadric*>(&quadricStorage);
}
void gluDeleteQuadric(GLUquadric* /*quad*/) {
  RecordCallOf("gluDeleteQuadric");
}
void gluQuadricCallback(GLUquadric* /*quad*/, GLenum which, _GLUfuncptr /*callback*/) {
  RecordCallOf("gluQuadricCallback", Symbol(which));
}
void gluQuadricTexture(GLUquadric* /*quad*/, GLboolean texture) {
  RecordCallOf("gluQuadricTexture", Symbol(texture));
}
void gluSphere(GLUquadric* /*quad*/, GLdouble radius, GLint slices, GLint stacks) {
  RecordCallOf("gluSphere", radius, slices, stacks);
}
void gluCylinder(GLUquadric* /*quad*/, GLdouble base, GLdouble top, GLdouble height, GLint slices,
                 GLint stacks) {
  RecordCallOf("gluCylinder", base, top, height, slices, stacks);
}
const GLubyte* gluErrorString(GLenum error) {
  RecordCallOf("gluErrorString", error);
  return reinterpret_cast<const GLubyte*>("error");
}
}
