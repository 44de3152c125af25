#pragma once

#include <GL/gl.h>
#include <GL/glu.h>

#include <cstdint>
#include <string>

#include "CameraMemos.h"
#include "Clock.h"
#include "PlotExtent.h"
#include "Trajectory.h"
#include "glCtl.h"

namespace quorb {

/// The quadric that all spheres and cylinders share; null until the context is ready.
extern GLUquadric* GlQuadric;
/// What stands in front of the plot's title in the corner of the view.
extern std::string TitlePrefix;
/// The program's name.
extern std::string AppTitle;

/// Numbers of display lists. The trajectory's stays 0, which OpenGL refuses as a list, so that what stands
/// between glNewList and glEndList is drawn at once, in every frame.
struct DisplayLists {
  std::uint32_t BrokenLine = 0;
  /// Last row drawn when the trajectory's list was made.
  std::int32_t BrokenLineIndex = 0;
};

/// The scene: it digests the plot once after a load, and draws a frame whenever the host asks. There is one
/// instance, made before the host's first event. It reads the plot arrays, the run state and USERFLAG afresh
/// in every frame. InitGL, Draw, DrawGDI, ScaleColorDot, glVertex3fColor and, once InitGL has run, the end of
/// the scene need the host's OpenGL context; the other methods do not.
class ClassGl : public PlotExtent {
 public:
  /// Starts with a plot of scale 1 without a title. `hostControl` has to outlive the scene.
  explicit ClassGl(glCtl& hostControl);
  ~ClassGl();
  ClassGl(const ClassGl&) = delete;
  ClassGl& operator=(const ClassGl&) = delete;

  // ---- events of the host -------------------------------------------------------------------------------

  /// Before the context exists: the host's wish for a depth buffer.
  void init();
  /// Context ready: lights, camera, materials, fonts and the state of OpenGL.
  void InitGL();
  /// Draws one frame. The host has cleared the colour buffer and set the matrices.
  void Draw();
  /// Over the finished frame: the plot's title.
  void DrawGDI();
  /// Takes the view's size in pixels and sends the camera's view back to the host. Always true.
  bool Reshape(int& width, int& height);

  /// Puts the camera on one of the standard views. Each walk through views goes one step on per call:
  /// "ISONEW" eight steps round the upward axis, "ISONEWPLUS" six over the corners of a cube, and any other
  /// text but "ISO" the eight projections, with "PROJINVERSE" backward. "ISO" is one fixed view. The first
  /// two walks stand still until a frame of the plot was drawn, and while the loader lays the window out.
  ///
  /// While USERFLAG.UpdateAsked is 1 the call takes the axis and does nothing else.
  /// @param mode compared trimmed and in upper case.
  /// @param value the axis that points upward for "ISONEW", 1 to 3. 2, and what is not above 0, keep the axis
  /// chosen last; before any was chosen `value` is taken as it is, so that a first call with 2 takes 2.
  /// @param flag 1 takes `value` as it is in any case.
  void CameraSet(const std::string& mode, double value, double flag);

  /// The host's reference grid at the head of each frame.
  bool Grids() const { return GridsOn; }
  void Grids(bool on) { GridsOn = on; }

  // ---- time ---------------------------------------------------------------------------------------------

  /// Sets the last row that a frame draws, halves to the even row, and lets the time run. With equal values
  /// the time is held. With one variable in both places the present row is held, and handed back in it.
  /// @param newIndex row; one outside 32 bits changes nothing.
  /// @param oldIndex out: the row before the call when the time is held, else 0.
  void ChangeCURRINDEXI(const double& newIndex, double& oldIndex);
  /// The same for the first row that a frame draws; equal values ask the next tick to hold the time.
  /// @param oldIndex out: the row before the call, or 0 when the time runs.
  void ChangeCURRINDEXMINI(const double& newIndex, double& oldIndex);
  /// Sets the rows that a passed tick adds.
  void ChangeSTEPPT(double newStep);
  /// A tick of the timer. One in five passes and moves the time on, until the plot's last row.
  void TheUpdateTimer_ThatTime();

  // ---- colours ------------------------------------------------------------------------------------------

  /// The colour ramp from magenta over blue, cyan, green and yellow to red.
  /// @param value clamped just inside `low` and `high`.
  /// @param red, green, blue out: 0 to 1; left as they are when the limits give no place on the ramp.
  /// @param alpha out: 1.
  /// @param high raised to low + 1 when it equals `low`.
  static void ColorScale(double value, double& red, double& green, double& blue, double& alpha, double low,
                         double& high);
  /// Shows the ramp as 32 dots, a unit apart, on the last 32 units of the axis ValAxis, or of all when that
  /// is 0.
  void ScaleColorDot();
  /// A vertex in a colour that tells its signs: red for x above 0, green for y, blue for z.
  static void glVertex3fColor(double x, double y, double z);

  /// Length of the drawn axes from the origin, in scene units.
  double AxisLength() const;

  // ---- state that other modules read --------------------------------------------------------------------

  /// The host control that the scene draws on.
  glCtl& Host;

  int HostDC = 0;
  /// Size of the view in pixels.
  int ViewWidth = 0;
  int ViewHeight = 0;
  HostMaterial* Material13 = nullptr;
  HostMaterial* Material15 = nullptr;
  HostMaterial* Material14 = nullptr;
  HostMaterial* Material16 = nullptr;
  HostMaterial* DefaultMaterial = nullptr;
  /// True once a plot was digested and the scene set for it.
  bool ResetDone = false;
  /// Last and first row of dataXYZT that a frame draws.
  std::int32_t CURRINDEXI = 0;
  std::int32_t CURRINDEXMINI = 0;
  /// Second running index, from 0 up to LastPoint, and again.
  std::int32_t CycleIndex = 0;
  /// Milliseconds between ticks for the next plot; 0 shows it at StartFraction at once.
  std::int32_t TimerInterval = 1;
  /// Share of LastPoint where the plot stands when TimerInterval is 0.
  double StartFraction = 0;
  int FontOutline = 0;
  int FontLabelLarge = 0;
  int FontLabelSmall = 0;
  DisplayLists glLISTE;
  UpdateTimer TheUpdateTimer;
  TrajectoryState Trajectory;
  CameraMemos CameraSteps;

 private:
  void Reset();
  void StartTimeOfPlot();
  void PlaceLight(double x, double y, double z);
  void MakeDefaultMaterial();
  void MakeFonts();

  void DrawVernalText();
  void DrawLogoText();
  void SetAxisWidth();
  void SetPlotWidths();
  void DrawBrokenLine();
  void DrawScaleLegend();

  bool IsPassedTick();
  void MoveTimeOn();

  bool GridsOn = false;
  /// Ticks from 1 to 100, and from 1 to 5; 0 before the first one.
  int TickCycle = 0;
  int TickPhase = 0;
};

}  // namespace quorb
