#include "Trajectory.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "ClassGl.h"
#include "ColourScale.h"
#include "PlotData.h"
#include "RunState.h"
#include "SceneColour.h"
#include "UserFlag.h"

namespace quorb {

namespace {

constexpr double kPointLabelSize = 6;
/// Rows of dataQuater that share the time colour of one point.
constexpr std::int64_t kRowsPerColour = 6;

void PutCameraBack(HostCamera& camera) {
  camera.SetFar(1000);
  camera.SetNear(-1000);
  camera.SetField(180);
  camera.SetUp(0, 0, 1);
  camera.SetTarget(0, 0, 0);
  camera.SetPosition(80, 80, 80);
  camera.SetProjection(1);
}

void OpenList(ClassGl& scene) {
  if (scene.CURRINDEXI < 0) PutCameraBack(scene.Host.Camera());
  glDeleteLists(scene.glLISTE.BrokenLine, 1);
  glNewList(scene.glLISTE.BrokenLine, GL_COMPILE);
  glColor3f(0, 1, 1);
  SetOptionColour(USERFLAG.ColourPlotNominal, kTraceAlpha);
  StartEventWalk(scene.Trajectory.Events);
  StartValueBars(scene.Trajectory.Bars, scene.Range);
}

void SetTimeColour(RampColour& colour, double time) {
  TakeRampColour(colour, time, TimeMin, TimeMax);
  SetRampColour(colour, colour.alpha);
}

void ColourSecondPoint(TrajectoryState& state, RampColour& colour, std::int64_t row) {
  const std::int64_t shifted = row + state.QuaterColourShift;
  if (NbQuater > 2.0 * LastPoint || shifted % kRowsPerColour != 0) return;
  const std::int64_t point = shifted / kRowsPerColour;
  if (!dataXYZT.Holds(point)) return;
  state.QuaterColourRow = static_cast<std::int32_t>(point);
  SetTimeColour(colour, dataXYZT[point][0]);
}

/// The shadows of a row on the walls of the cube, behind its vertex; then the line goes on from the vertex.
void DrawShadows(const TrajectoryState& state, GLenum primitive, const NumberTable<5>& table,
                 std::int64_t row, const double* vertex) {
  glEnd();
  glBegin(GL_POINTS);
  ClassGl::DrawCubic(table, state.CubeFaceX, state.CubeFaceY, state.CubeFaceZ, row, state.DotSizeCubic,
                     state.DotSizeAfterCubic);
  glEnd();
  glBegin(primitive);
  PlaceVertex(vertex);
}

/// The second points of the rows of separate objects, as lines. Their shadows are taken one column further
/// right than their points.
void DrawSecondPoints(TrajectoryState& state) {
  USERFLAG.ShowSatellite = 0;
  glLineWidth(static_cast<GLfloat>(USERFLAG.ThicknessLineAxis));
  glBegin(GL_LINE_STRIP);
  RampColour colour;
  const bool shadows = USERFLAG.CubicView == 1.0;
  const auto last = static_cast<std::int64_t>(std::min<double>(NbQuater, kRowBound - 1));
  for (std::int64_t row = 0; row <= last; ++row) {
    ColourSecondPoint(state, colour, row);
    if (dataQuater[row][3] == -1) {
      glEnd();
      glBegin(GL_LINE_STRIP);
    } else {
      PlaceVertex(dataQuater[row]);
      if (shadows) DrawShadows(state, GL_LINE_STRIP, dataQuater, row, dataQuater[row]);
    }
  }
  glEnd();
}

void LiftPen(GLenum primitive) {
  glEnd();
  glBegin(primitive);
}

/// A dot, and the line goes on from it.
void DrawMarkedPoint(const TrajectoryState& state, std::int64_t row, bool shadows) {
  const double* point = dataXYZT[row] + 1;
  glEnd();
  glBegin(GL_POINTS);
  PlaceVertex(point);
  if (shadows) {
    ClassGl::DrawCubic(dataXYZT, state.CubeFaceX, state.CubeFaceY, state.CubeFaceZ, row, state.DotSizeCubic,
                       state.DotSizeAfterCubic);
  }
  glEnd();
  glBegin(state.DrawPrimitive);
  PlaceVertex(point);
}

void DrawPointLabel(ClassGl& scene, std::int64_t row) {
  std::string text = " ";
  text += dataPenUpLabel[row];
  const double* point = dataXYZT[row] + 1;
  scene.Host.Text().Draw3D(scene.FontOutline, text, point[0], point[1], point[2], kPointLabelSize,
                           PackedColour(USERFLAG.ColourAxisLabels));
}

/// A line in its event colours, with nothing more: the common plot, and so the shortest loop.
void DrawEventLine(ClassGl& scene, std::int64_t first, std::int64_t last) {
  TrajectoryState& state = scene.Trajectory;
  EventWalk& events = state.Events;
  for (std::int64_t i = first; i <= last; ++i) {
    const double* row = dataXYZT[i];
    const double time = row[0];
    if (!IsSettled(events, time)) StepEvent(events, scene, time);
    if (row[4] == -1) {
      LiftPen(GL_LINE_STRIP);
    } else if (events.RowMark == 1) {
      DrawMarkedPoint(state, i, false);
    } else {
      USERFLAG.MovieDataTime = time;
      PlaceVertex(row + 1);
    }
  }
}

/// A plot with colour values, of separate objects, or with shadows on the cube.
void DrawAnyRows(ClassGl& scene, std::int64_t first, std::int64_t last) {
  TrajectoryState& state = scene.Trajectory;
  const bool labels = PenUpLabelMode == 1 && PenUpLabelShow == 1;
  const bool shadows = USERFLAG.CubicView == 1.0;
  RampColour timeColour;
  for (std::int64_t i = first; i <= last; ++i) {
    const double* row = dataXYZT[i];
    const double time = row[0];
    if (PenUpMode == 1) {
      SetTimeColour(timeColour, time);
    } else if (!IsSettled(state.Events, time)) {
      StepEvent(state.Events, scene, time);
    }
    if (row[4] == -1 && PenUpMode != 1) {
      LiftPen(state.DrawPrimitive);
    } else if (state.Events.RowMark == 1) {
      DrawMarkedPoint(state, i, shadows);
    } else {
      if (labels) DrawPointLabel(scene, i);
      USERFLAG.MovieDataTime = time;
      if (ValColour == 1) {
        DrawValueRow(state.Bars, state.Events.ThrustOn, row);
      } else {
        PlaceVertex(row + 1);
        if (shadows) DrawShadows(state, state.DrawPrimitive, dataXYZT, i, row + 1);
      }
    }
  }
}

void DrawRows(ClassGl& scene) {
  const std::int64_t first = std::max<std::int64_t>(scene.CURRINDEXMINI, 0);
  const std::int64_t last = std::min<std::int64_t>(scene.CURRINDEXI, kRowBound - 1);
  if (first > last) return;
  SeekFirstEvent(scene.Trajectory.Events, scene);
  const bool plainLine = PenUpMode != 1 && ValColour != 1 && PenUpLabelMode != 1 && USERFLAG.CubicView != 1.0;
  if (plainLine) {
    DrawEventLine(scene, first, last);
  } else {
    DrawAnyRows(scene, first, last);
  }
}

}  // namespace

bool CallStoredTrajectory(ClassGl& scene) {
  const DisplayLists& lists = scene.glLISTE;
  if (lists.BrokenLine == 0 || lists.BrokenLineIndex != scene.CURRINDEXI) return false;
  glCallList(lists.BrokenLine);
  return true;
}

void DrawTrajectory(ClassGl& scene) {
  TrajectoryState& state = scene.Trajectory;
  OpenList(scene);
  if (PenUpMode == 1) DrawSecondPoints(state);
  state.DrawPrimitive = PenUpMode == 1 && ValColour != 1 ? GL_POINTS : GL_LINE_STRIP;
  if (PenUpMode == 1 || ValColour == 1) scene.ScaleColorDot();
  glBegin(state.DrawPrimitive);
  DrawRows(scene);
  glEnd();
  glEndList();
  scene.glLISTE.BrokenLineIndex = scene.CURRINDEXI;
}

}  // namespace quorb
