#include "GlHost.h"

#include <GL/gl.h>
#include <GL/glu.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>

#include "FrameFixture.h"

namespace quorb {
namespace {

using GlHostTest = FrameFixture;

std::array<double, 16> MatrixOf(GLenum name) {
  std::array<double, 16> matrix{};
  glGetDoublev(name, matrix.data());
  return matrix;
}

TEST_F(GlHostTest, OrthographicMatrixIsTheWidenedWindow) {
  std::array<double, 16> matrix{};
  events.onDraw = [&matrix] { matrix = MatrixOf(GL_PROJECTION_MATRIX); };
  std::string error;
  ASSERT_TRUE(host->Resize(160, 100, error)) << error;
  host->Frame();
  EXPECT_NEAR(matrix[0], 2.0 / 320.0, 1e-7);
  EXPECT_NEAR(matrix[5], 2.0 / 200.0, 1e-7);
  EXPECT_NEAR(matrix[10], -2.0 / 20000.0, 1e-9);
}

TEST_F(GlHostTest, PerspectiveIsProjectionZero) {
  std::array<double, 16> matrix{};
  events.onDraw = [&matrix] { matrix = MatrixOf(GL_PROJECTION_MATRIX); };
  host->Camera().SetProjection(0);
  host->Camera().SetField(90);
  host->Frame();
  EXPECT_NEAR(matrix[0], 1.0, 1e-6);
  EXPECT_NEAR(matrix[5], 1.0, 1e-6);
  EXPECT_NEAR(matrix[11], -1.0, 1e-6);
}

TEST_F(GlHostTest, EyeOnItsTargetGivesAFiniteView) {
  std::array<double, 16> matrix{};
  events.onDraw = [&matrix] { matrix = MatrixOf(GL_MODELVIEW_MATRIX); };
  host->Camera().Look(0, 0, 0, 0, 0, 0, 0, 1, 0);
  host->Frame();
  const std::array<double, 16> expected{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, -1, 1};
  for (std::size_t i = 0; i < matrix.size(); ++i)
    EXPECT_NEAR(matrix[i], expected[i], 1e-6) << i;
}

TEST_F(GlHostTest, LightStandsInTheScene) {
  host->Lights(1).SetPosition(10, 30, 150);
  host->Lights(1).SetAmbient(0, 1, 1, 1);
  host->Lights(1).SetDiffuse(1, 0, 1, 1);
  host->Lights(1).SetSpecular(1, 1, 0, 1);
  host->Lights(1).SetEnabled(true);
  std::array<float, 4> position{};
  std::array<float, 4> diffuse{};
  bool first = false;
  bool second = true;
  events.onDraw = [&] {
    glGetLightfv(GL_LIGHT0, GL_POSITION, position.data());
    glGetLightfv(GL_LIGHT0, GL_DIFFUSE, diffuse.data());
    first = glIsEnabled(GL_LIGHT0) == GL_TRUE;
    second = glIsEnabled(GL_LIGHT1) == GL_TRUE;
  };
  host->Frame();
  EXPECT_EQ(position, (std::array<float, 4>{10, 30, 50, 1}));
  EXPECT_EQ(diffuse, (std::array<float, 4>{1, 0, 1, 1}));
  EXPECT_TRUE(first);
  EXPECT_FALSE(second);
}

TEST_F(GlHostTest, LightOrMaterialOfAnotherNumberHarmsNone) {
  host->Lights(0).SetEnabled(true);
  host->Lights(9).SetEnabled(true);
  EXPECT_EQ(&host->Materials(0), &host->Materials(1));
  EXPECT_EQ(&host->Materials(99), &host->Materials(16));
  int enabled = 0;
  events.onDraw = [&enabled] {
    for (GLenum name = GL_LIGHT0; name <= GL_LIGHT7; ++name)
      enabled += glIsEnabled(name);
  };
  host->Frame();
  EXPECT_EQ(enabled, 0);
}

TEST_F(GlHostTest, MaterialActsAtOnceOnItsFace) {
  HostMaterial& material = host->NewMaterial();
  material.SetFace(GL_FRONT_AND_BACK);
  material.SetAmbient(0.1F, 0.2F, 0.3F, 1.0F);
  material.SetDiffuse(0.4F, 0.5F, 0.6F, 1.0F);
  material.SetSpecular(0.7F, 0.8F, 0.9F, 1.0F);
  material.SetSpecExp(200);
  std::array<float, 4> colour{};
  glGetMaterialfv(GL_BACK, GL_DIFFUSE, colour.data());
  EXPECT_EQ(colour, (std::array<float, 4>{0.4F, 0.5F, 0.6F, 1.0F}));
  glGetMaterialfv(GL_FRONT, GL_SPECULAR, colour.data());
  EXPECT_EQ(colour, (std::array<float, 4>{0.7F, 0.8F, 0.9F, 1.0F}));
  float exponent = 0;
  glGetMaterialfv(GL_FRONT, GL_SHININESS, &exponent);
  EXPECT_EQ(exponent, 128.0F);
}

TEST_F(GlHostTest, PrintTextMarksPixelsNearTheTopLeft) {
  events.onOverlay = [this] { host->PrintText(8, 3, "Title"); };
  const PixelImage image = Frame();
  EXPECT_GT(LitPixels(image, 8, 50, 3, 18), 40);
  EXPECT_EQ(LitPixels(image), LitPixels(image, 8, 50, 3, 18));
}

TEST_F(GlHostTest, PrintTextShowsForOneFrameOnly) {
  host->PrintText(8, 3, "Title");
  host->Frame();
  EXPECT_EQ(LitPixels(Frame()), 0);
}

TEST_F(GlHostTest, PrintTextStandsOverTheSceneAndIgnoresItsState) {
  host->SetDepthTest(true);
  events.onDraw = [] {
    glEnable(GL_LIGHTING);
    glEnable(GL_CULL_FACE);
    glMatrixMode(GL_PROJECTION);
    glScalef(100.0F, 100.0F, 1.0F);
    glMatrixMode(GL_MODELVIEW);
    glTranslatef(1000.0F, 0.0F, 0.0F);
  };
  events.onOverlay = [this] { host->PrintText(8, 3, "Title"); };
  EXPECT_GT(LitPixels(Frame(), 8, 50, 3, 18), 40);
}

TEST_F(GlHostTest, PrintTextIsDarkOverALightBackground) {
  glClearColor(1.0F, 1.0F, 1.0F, 1.0F);
  host->PrintText(8, 3, "Title");
  const PixelImage image = Frame();
  EXPECT_LT(*std::min_element(image.rgb.begin(), image.rgb.end()), 80);
}

TEST_F(GlHostTest, PrintTextOutsideTheViewIsHarmless) {
  host->PrintText(-50, -50, "Title");
  host->PrintText(5000, 5000, "Title");
  EXPECT_EQ(LitPixels(Frame()), 0);
}

TEST(TextColourOver, TurnsAtHalfBrightness) {
  EXPECT_EQ(TextColourOver({0, 0, 0}), 0xE6E6E6);
  EXPECT_EQ(TextColourOver({0, 0, 1}), 0xE6E6E6);
  EXPECT_EQ(TextColourOver({0, 1, 0}), 0x202020);
  EXPECT_EQ(TextColourOver({1, 1, 1}), 0x202020);
}

TEST_F(GlHostTest, GridLiesThroughTheOriginAsFarAsTheSize) {
  host->SetSize(50, 50, 50);
  events.onDraw = [this] { host->DrawGrids(); };
  const PixelImage image = Frame();
  EXPECT_GT(LitPixels(image, 49, 151, 49, 151), 21 * 100);
  EXPECT_EQ(LitPixels(image), LitPixels(image, 49, 151, 49, 151));
}

TEST_F(GlHostTest, ReturnedListsAreDeletedInBatchesBehindAFrame) {
  const unsigned first = glGenLists(256);
  for (unsigned i = 0; i < 256; ++i) {
    glNewList(first + i, GL_COMPILE);
    glEndList();
  }
  host->ReturnList(0);
  for (unsigned i = 0; i < 255; ++i)
    host->ReturnList(first + i);
  host->Frame();
  EXPECT_EQ(glIsList(first), GL_TRUE);
  host->ReturnList(first + 255);
  EXPECT_EQ(glIsList(first), GL_TRUE);
  host->Frame();
  EXPECT_EQ(glIsList(first), GL_FALSE);
  EXPECT_EQ(glIsList(first + 255), GL_FALSE);
}

TEST(AnimationValues, UpdateAppliesAChangeOnce) {
  std::string applied;
  AnimationValues animation([&applied](bool on) { applied += on ? "on " : "off "; });
  animation.Update();
  animation.SetEnabled(true);
  EXPECT_EQ(applied, "");
  animation.Update();
  animation.Update();
  animation.SetEnabled(false);
  animation.Update();
  EXPECT_EQ(applied, "on off ");
}

}  // namespace
}  // namespace quorb
