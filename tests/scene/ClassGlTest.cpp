#include "ScenePlot.h"

namespace quorb {
namespace {

class ClassGlTest : public ScenePlot {};

TEST_F(ClassGlTest, StartsWithItsInitialValues) {
  FactorScale = 3;
  MessageUserToPlot = "old";
  ClassGl fresh(host);
  EXPECT_EQ(fresh.Range, 100);
  EXPECT_EQ(fresh.RangeMin, 0);
  EXPECT_EQ(fresh.TimerInterval, 1);
  EXPECT_EQ(fresh.CURRINDEXI, 0);
  EXPECT_EQ(fresh.CURRINDEXMINI, 0);
  EXPECT_EQ(fresh.StartFraction, 0);
  EXPECT_FALSE(fresh.ResetDone);
  EXPECT_EQ(fresh.EditState(), 1);
  EXPECT_FALSE(fresh.PickDragging);
  EXPECT_EQ(fresh.PickedName, 0);
  EXPECT_EQ(fresh.glLISTE.Axes, 0U);
  EXPECT_EQ(fresh.glLISTE.AddAxis, 0U);
  EXPECT_EQ(FactorScale, 1.0);
  EXPECT_EQ(MessageUserToPlot, "");
  EXPECT_EQ(TitlePrefix, " ");
  EXPECT_EQ(AppTitle, "QuorbExcelPro");
  EXPECT_THAT(RecordedCalls(), IsEmpty());
}

TEST_F(ClassGlTest, InitWishesForADepthBuffer) {
  scene.init();
  EXPECT_THAT(RecordedCalls(), ElementsAre("SetDepthBuffer(true)"));
}

TEST_F(ClassGlTest, ContextReadySetsTheSceneInOrder) {
  scene.Grids(true);
  scene.EditStateValue = 6;
  scene.InitGL();
  EXPECT_THAT(
      RecordedCalls(),
      ElementsAre("glClearColor(0.0390625, 0.078125, 0.2734375, 1)", "Lights(1).SetAmbient(0, 1, 1, 1)",
                  "Lights(1).SetDiffuse(1, 0, 1, 1)", "Lights(1).SetSpecular(1, 1, 0, 1)",
                  "Lights(1).SetPosition(10, 30, 150)", "Lights(1).SetEnabled(true)", "Camera.SetUp(0, 1, 0)",
                  "Camera.SetTarget(0, 0, 0)", "Camera.SetPosition(100, 100, 100)", "Camera.SetFar(10000)",
                  "Camera.SetNear(-10000)", "Camera.SetField(180)", "Camera.SetProjection(1)",
                  "NewMaterial()", "Material.SetFace(1028)", "Material.SetAmbient(0.1, 0.1, 0.1, 1)",
                  "Material.SetDiffuse(0.3, 0.3, 0.7, 1)", "Material.SetSpecular(0.6, 0.6, 0.6, 1)",
                  "Material.SetSpecExp(60)", "Materials(15)", "Materials(13)", "Materials(14)",
                  "Materials(16)", "SetDepthTest(true)", "SetAntialiasing(true)", "SetSize(100, 100, 100)",
                  "gluNewQuadric()", "gluQuadricCallback(GLU_ERROR)", "hDC()", "glDisable(GL_LIGHTING)",
                  "glEnable(GL_MAP1_VERTEX_3)", "glShadeModel(GL_FLAT)",
                  "Camera.SetOrtho(-100, 100, -100, 100)", "glEnable(GL_CULL_FACE)",
                  "glColorMaterial(GL_FRONT, GL_AMBIENT_AND_DIFFUSE)",
                  "Text.NewOutlineFont(7, \"Comic Sans MS\", true, false, 0.1)",
                  "Text.NewBitmapFont(7, \"Arial\", true, true, 9)",
                  "Text.NewBitmapFont(7, \"Arial\", true, true, 6)"));
  EXPECT_FALSE(scene.Grids());
  EXPECT_EQ(scene.EditState(), 1);
  EXPECT_EQ(scene.FontOutline, 1);
  EXPECT_EQ(scene.FontLabelLarge, 2);
  EXPECT_EQ(scene.FontLabelSmall, 3);
  EXPECT_EQ(scene.DefaultMaterial, &host.ownMaterial);
  EXPECT_EQ(scene.Material14, &host.materials[14]);
}

TEST_F(ClassGlTest, ContextReadyRaisesARangeOfZero) {
  scene.Range = 0;
  scene.InitGL();
  EXPECT_EQ(scene.Range, 90);
  EXPECT_EQ(CountOf(RecordedCalls(), "SetSize(90, 90, 90)"), 1);
}

TEST_F(ClassGlTest, EndOfTheSceneDeletesTheQuadric) {
  {
    ClassGl fresh(host);
    fresh.InitGL();
    EXPECT_NE(GlQuadric, nullptr);
    ClearCalls();
  }
  EXPECT_EQ(GlQuadric, nullptr);
  EXPECT_THAT(RecordedCalls(), ElementsAre("gluDeleteQuadric()"));
  ClearCalls();
  { ClassGl fresh(host); }
  EXPECT_THAT(RecordedCalls(), IsEmpty()) << "there was none";
}

TEST_F(ClassGlTest, ReshapeKeepsTheSizeAndTheCamera) {
  host.camera.position = {1, 2, 3};
  host.camera.target = {4, 5, 6};
  host.camera.up = {7, 8, 9};
  int width = 800;
  int height = 600;
  EXPECT_TRUE(scene.Reshape(width, height));
  EXPECT_EQ(scene.ViewWidth, 800);
  EXPECT_EQ(scene.ViewHeight, 600);
  EXPECT_THAT(RecordedCalls(), ElementsAre("Camera.GetPosition()", "Camera.GetTarget()", "Camera.GetUp()",
                                           "Camera.Look(1, 2, 3, 4, 5, 6, 7, 8, 9)"));
}

TEST_F(ClassGlTest, OverlayShowsTheTitle) {
  MessageUserToPlot = "Transfer";
  scene.DrawGDI();
  EXPECT_THAT(RecordedCalls(), ElementsAre("PrintText(8, 3, \"   Transfer\")"));
}

}  // namespace
}  // namespace quorb
