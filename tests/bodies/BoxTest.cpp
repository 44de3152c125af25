#include "Box.h"

#include "ScenePlot.h"

namespace quorb {
namespace {

class BoxTest : public testing::Test {
 protected:
  BoxTest() { ClearCalls(); }

  static std::vector<std::string> Vertices() {
    std::vector<std::string> vertices;
    for (const std::string& call : RecordedCalls()) {
      if (call.starts_with("glVertex3f")) vertices.push_back(call);
    }
    return vertices;
  }
};

TEST_F(BoxTest, AFaceIsOnePolygonWhoseCornersTakeTheColourOfTheirOctant) {
  face(1, 1, 2, 3);
  EXPECT_THAT(RecordedCalls(),
              ElementsAre("glBegin(GL_POLYGON)", "glColor3f(1, 1, 1)", "glVertex3f(1, 2, 3)",
                          "glColor3f(1, 0, 1)", "glVertex3f(1, -2, 3)", "glColor3f(1, 0, 0)",
                          "glVertex3f(1, -2, -3)", "glColor3f(1, 1, 0)", "glVertex3f(1, 2, -3)", "glEnd()"));
}

TEST_F(BoxTest, TheOppositeFaceIsWoundAsSeenFromOutsideToo) {
  face(-1, 1, 2, 3);
  EXPECT_THAT(
      RecordedCalls(),
      ElementsAre("glBegin(GL_POLYGON)", "glColor3f(0, 1, 1)", "glVertex3f(-1, 2, 3)", "glColor3f(0, 1, 0)",
                  "glVertex3f(-1, 2, -3)", "glColor3f(0, 0, 0)", "glVertex3f(-1, -2, -3)",
                  "glColor3f(0, 0, 1)", "glVertex3f(-1, -2, 3)", "glEnd()"));
}

TEST_F(BoxTest, AFaceOfAnotherNumberDrawsNothing) {
  for (const int k : {0, 4, -4, 100})
    face(k, 1, 2, 3);
  EXPECT_THAT(RecordedCalls(), IsEmpty());
}

TEST_F(BoxTest, ABoxHasItsSixSidesInOrderWithTheHalfSizesOnTheirOwnAxes) {
  monolythe(1, 2, 3);
  EXPECT_THAT(Vertices(),
              ElementsAre("glVertex3f(-1, 2, 3)", "glVertex3f(-1, 2, -3)", "glVertex3f(-1, -2, -3)",
                          "glVertex3f(-1, -2, 3)",  //
                          "glVertex3f(1, 2, 3)", "glVertex3f(1, -2, 3)", "glVertex3f(1, -2, -3)",
                          "glVertex3f(1, 2, -3)",  //
                          "glVertex3f(1, -2, 3)", "glVertex3f(-1, -2, 3)", "glVertex3f(-1, -2, -3)",
                          "glVertex3f(1, -2, -3)",  //
                          "glVertex3f(1, 2, 3)", "glVertex3f(1, 2, -3)", "glVertex3f(-1, 2, -3)",
                          "glVertex3f(-1, 2, 3)",  //
                          "glVertex3f(1, 2, -3)", "glVertex3f(1, -2, -3)", "glVertex3f(-1, -2, -3)",
                          "glVertex3f(-1, 2, -3)",  //
                          "glVertex3f(1, 2, 3)", "glVertex3f(-1, 2, 3)", "glVertex3f(-1, -2, 3)",
                          "glVertex3f(1, -2, 3)"));
}

struct MovedCase {
  double ox, oy, oz;
  const char* there;
  const char* back;
};

class MovedBoxTest : public BoxTest, public testing::WithParamInterface<MovedCase> {};

TEST_P(MovedBoxTest, ABoxIsMovedByTwiceTheOffsetAndItsOwnHalfSize) {
  const MovedCase& moved = GetParam();
  monolitheNonCenter(1, 2, 3, moved.ox, moved.oy, moved.oz);
  const std::vector<std::string> calls = RecordedCalls();
  ASSERT_EQ(calls.size(), 62U);
  EXPECT_EQ(calls.front(), moved.there);
  EXPECT_EQ(calls.back(), moved.back);
  ClearCalls();
  monolythe(1, 2, 3);
  EXPECT_EQ(std::vector(calls.begin() + 1, calls.end() - 1), RecordedCalls());
}

INSTANTIATE_TEST_SUITE_P(
    Offsets, MovedBoxTest,
    testing::Values(MovedCase{0, 0, 5, "glTranslatef(0, 0, 13)", "glTranslatef(-0, -0, -13)"},
                    MovedCase{0, 0, -5, "glTranslatef(0, 0, -13)", "glTranslatef(-0, -0, 13)"},
                    MovedCase{0, 5, 0, "glTranslatef(0, 12, 0)", "glTranslatef(-0, -12, -0)"},
                    MovedCase{0, -5, 0, "glTranslatef(0, -12, 0)", "glTranslatef(-0, 12, -0)"},
                    MovedCase{5, 0, 0, "glTranslatef(11, 0, 0)", "glTranslatef(-11, -0, -0)"},
                    MovedCase{-5, 0, 0, "glTranslatef(-11, 0, 0)", "glTranslatef(11, -0, -0)"},
                    MovedCase{0, 0, 0, "glTranslatef(0, 0, 0)", "glTranslatef(-0, -0, -0)"},
                    MovedCase{5, 5, 0, "glTranslatef(0, 0, 0)", "glTranslatef(-0, -0, -0)"},
                    MovedCase{0, 5, 5, "glTranslatef(0, 0, 0)", "glTranslatef(-0, -0, -0)"}));

}  // namespace
}  // namespace quorb
