// The OpenGL and GLU functions of the scene with nothing in them: what a frame costs with these is the
// program's own.

#include <GL/gl.h>
#include <GL/glu.h>

extern "C" {

void glBegin(GLenum /*mode*/) {}
void glEnd() {}
void glVertex3f(GLfloat /*x*/, GLfloat /*y*/, GLfloat /*z*/) {}
void glColor3f(GLfloat /*red*/, GLfloat /*green*/, GLfloat /*blue*/) {}
void glColor4f(GLfloat /*red*/, GLfloat /*green*/, GLfloat /*blue*/, GLfloat /*alpha*/) {}
void glLineWidth(GLfloat /*width*/) {}
void glPointSize(GLfloat /*size*/) {}

void glNewList(GLuint /*list*/, GLenum /*mode*/) {}
void glEndList() {}
void glDeleteLists(GLuint /*list*/, GLsizei /*range*/) {}
void glCallList(GLuint /*list*/) {}
GLuint glGenLists(GLsizei /*range*/) {
  return 1;
}

void glPushMatrix() {}
void glPopMatrix() {}
void glTranslatef(GLfloat /*x*/, GLfloat /*y*/, GLfloat /*z*/) {}

void glGetIntegerv(GLenum /*name*/, GLint* /*values*/) {}
void glPixelStorei(GLenum /*name*/, GLint /*value*/) {}
void glReadPixels(GLint /*x*/, GLint /*y*/, GLsizei /*width*/, GLsizei /*height*/, GLenum /*format*/,
                  GLenum /*type*/, GLvoid* /*pixels*/) {}

void glClear(GLbitfield /*mask*/) {}
void glClearColor(GLclampf /*red*/, GLclampf /*green*/, GLclampf /*blue*/, GLclampf /*alpha*/) {}
void glClearDepth(GLclampd /*depth*/) {}
void glEnable(GLenum /*cap*/) {}
void glDisable(GLenum /*cap*/) {}
void glShadeModel(GLenum /*mode*/) {}
void glColorMaterial(GLenum /*face*/, GLenum /*mode*/) {}

GLUquadric* gluNewQuadric() {
  return nullptr;
}
void gluDeleteQuadric(GLUquadric* /*quad*/) {}
void gluQuadricCallback(GLUquadric* /*quad*/, GLenum /*which*/, _GLUfuncptr /*callback*/) {}
const GLubyte* gluErrorString(GLenum /*error*/) {
  return reinterpret_cast<const GLubyte*>("");
}
}
