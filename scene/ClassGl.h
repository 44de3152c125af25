#pragma once

#include <GL/gl.h>
#include <GL/glu.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "CameraMemos.h"
#include "Clock.h"
#include "FrameKey.h"
#include "Interaction.h"
#include "PlotData.h"
#include "PlotExtent.h"
#include "SceneBodies.h"
#include "Trajectory.h"
#include "glCtl.h"

namespace quorb {

/// The quadric that all spheres and cylinders share; null until the context is ready.
extern GLUquadric* GlQuadric;
/// What stands in front of the plot's title in the corner of the view.
extern std::string TitlePrefix;
/// The program's name.
extern std::string AppTitle;

/// Numbers of display lists. Only the axes ever get one. The others stay 0, which OpenGL refuses as a list,
/// so that what stands between glNewList and glEndList is drawn at once, in every frame.
struct DisplayLists {
  std::uint32_t Axes = 0;
  std::uint32_t BrokenLine = 0;
  /// Last row drawn when the trajectory's list was made.
  std::int32_t BrokenLineIndex = 0;
  std::uint32_t AddAxis = 0;
  std::uint32_t Sphere = 0;
};

/// The scene: it digests the plot once after a load, and draws a frame whenever the host asks. There is one
/// instance, made before the host's first event. It reads the plot arrays, the run state and USERFLAG afresh
/// in every frame. InitGL, Draw, DrawGDI, whatever places vertices, the mode "lightback" and, once InitGL has
/// run, the end of the scene need the host's OpenGL context; the other methods do not.
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
  /// Runs Reset() over a plot that is new, as each frame does first: for whoever places the camera before the
  /// first frame. Needs no context.
  void DigestPlot();
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

  // ---- mouse and keyboard -------------------------------------------------------------------------------

  /// The mouse mode, a value of MouseMode. Setting it shows the mode's cursor; "zminus" and "zplus" make the
  /// orthographic window 3 times as wide or a third as wide at once, and "lightback" turns the background
  /// white until the next frame has set its own colour, or back.
  int EditState() const { return EditStateValue; }
  void EditState(int value);
  /// Gives the host's pointer a shape: 0 to 15, 99 (the picture `icon` names), 200 to 207 and 210 to 212; any
  /// other number is 0.
  void SetCursor(int id, const std::string& icon = {});

  /// Keys by their codes. "I" (73) steps the isometric walk, from the corners of a cube without shift. The
  /// arrow and page keys turn the camera by a hundredth about one axis; a camera on that axis stays.
  void KeyDown(int keyCode, int shift);
  /// Any character puts the eye on the origin, with Y upward.
  void KeyPress(const std::string& character);
  /// The new value of a camera coordinate that a key turned from `old` to `wanted`, with the limit 1 +
  /// |old| / 10: `wanted` when it lies within the limit of `old`; 1.05 times `old` when it lies within the
  /// limit of `-old`, since it then only jumped to the other side; else -wanted. `note` tells where the call
  /// comes from.
  static float noSteps(double old, double wanted, const std::string& note);

  /// The mouse in pixels from the top left corner of the view; `button` 1 left, 2 right, 0 none. A move with
  /// the left button drags as the mode says; with the right one it pans in the mode "zoom", does nothing in
  /// "select", and zooms in all others.
  void MouseDown(int button, int shift, double x, double y);
  void MouseMove(int button, int shift, double x, double y);
  void MouseUp(int button, int shift, double x, double y);
  /// Takes the nearest name of the host's hit records: count of names, least and greatest depth as unsigned
  /// numbers, names. The name -1 does not count; PickedName is 0 when nothing was hit. Records that end
  /// behind the buffer are left out.
  void Pick(const std::vector<std::int32_t>& hits);

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
  /// A tick of the timer. One in five passes: it moves the time on, until the plot's last row, and saves the
  /// movie's frame that is due. One passed tick in twenty looks at the sheet, while Interactive is on and no
  /// load runs.
  void TheUpdateTimer_ThatTime();
  /// Looks at the sheet; nothing until one is watched.
  std::function<void()> WatchSheet;

  // ---- capture ------------------------------------------------------------------------------------------

  /// Writes the picture of the last frame as a BMP file into `directory`, under `name`, or "ImageSaved.bmp"
  /// when that is empty. A file of this name is replaced. A fault leaves no file and shows no message.
  /// @return false when nothing was written.
  bool SaveBMP(const std::string& name, const std::string& directory);
  /// Writes w + 1 by h pixels from (x, y), which counts from the bottom left corner, cut at the view's edges.
  /// @return false when nothing was written.
  bool WriteBitmap(const std::string& path, int x, int y, int w, int h);
  /// Saves the next frame of the running movie when it is due, in the time of the data or of the clock, or
  /// ends the movie behind its last frame. A frame that cannot be written is left out, and the movie goes on.
  void MovieSaveAs();
  /// Hears of the first frame of a series that cannot be written, by its file name; nothing until it is set.
  std::function<void(const std::string& name)> MovieFrameLost;

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

  // ---- axes and cube ------------------------------------------------------------------------------------

  /// Length of the drawn axes from the origin, in scene units.
  double AxisLength() const;
  /// A line from the origin to (dx, dy, dz), from the first colour to the second. Behind it the line width is
  /// that of the axes.
  void AddAxisFromCenter(double width, float r1, float g1, float b1, float r2, float g2, float b2, double dx,
                         double dy, double dz);
  /// The shadows of one row on the three faces of the cube, as points; to be called between
  /// glBegin(GL_POINTS) and glEnd. Columns 1, 2, 3 of `table` are taken, also from dataQuater, whose points
  /// stand in columns 0, 1, 2. The two sizes are asked for where OpenGL takes none: the dots keep the size
  /// set before.
  static void DrawCubic(const NumberTable<5>& table, double faceX, double faceY, double faceZ,
                        std::int64_t row, double sizeBefore, double sizeAfter);
  /// The outlines of the three faces opposite the positive axes, of a cube from -length to length.
  static void DrawAxisCubic(double width, double length);
  /// Radius of the central body in km: of the Moon with `moonFlag` 1, else of the body by its number, 1 Sun
  /// to 6 Jupiter and 11 Moon, and of the Earth for any other.
  static void MainFocus(double& radius, double moonFlag, double body);

  // ---- idle ---------------------------------------------------------------------------------------------

  /// False when another frame would show what the last one shows: the two last ones were drawn from the state
  /// that holds now.
  bool FrameIsDue() const;
  /// True within a frame, also where it shows a message and lets events through.
  bool IsDrawing() const { return IsInFrame; }
  /// Has the next frame show rows of the plot that were changed without a load. The camera stays as it is,
  /// and the time goes on from its row. Points that were stored unscaled need DEJARESET 0 besides. Behind a
  /// load whose first frame is still to come that frame shows them, with the view of a load.
  void ShowChangedRows();

  // ---- state that other modules read --------------------------------------------------------------------

  /// The host control that the scene draws on.
  glCtl& Host;
  /// What the frames show besides the plot; null for the plot alone.
  std::unique_ptr<SceneBodies> BodiesShown;

  int HostDC = 0;
  /// Size of the view in pixels.
  int ViewWidth = 0;
  int ViewHeight = 0;
  HostMaterial* Material13 = nullptr;
  HostMaterial* Material15 = nullptr;
  HostMaterial* Material14 = nullptr;
  HostMaterial* Material16 = nullptr;
  HostMaterial* DefaultMaterial = nullptr;
  /// The mouse mode, the last mouse position in pixels, that of the left button's press, and the last
  /// normalised one, -1 to 1 upward and to the right.
  int EditStateValue = 1;
  std::int32_t MouseLastX = 0, MouseLastY = 0;
  std::int32_t MouseDownX = 0, MouseDownY = 0;
  double MouseNormX = 0, MouseNormY = 0;
  double MouseGain = 1;
  /// Nearest name of the last Pick, and whether a drag moves it.
  std::int32_t PickedName = 0;
  bool PickDragging = false;
  /// Half of the window that "zminus" and "zplus" set; 0 until the first mode was set.
  double OrthoHalfWidth = 0;
  int WhiteBack = 0;
  /// Where the letters of the axes stand.
  double LabelDistance = 0;
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
  void KeepTimeOfPlot();
  void PlaceLight(double x, double y, double z);
  void MakeDefaultMaterial();
  void MakeFonts();

  void DrawFrame();
  void DrawVernalText();
  void DrawLogoText();
  void SetAxisWidth();
  void SetPlotWidths();
  void DrawAxes();
  void DrawBrokenLine();
  bool BodiesAreToScale() const;
  void DrawRayToSun();
  void DrawShownSatellite();
  void DrawLitBodies();
  void DrawScaleLegend();

  bool IsPassedTick();
  void MoveTimeOn();

  void ToggleWhiteBack();
  void SaveMovieFrame();

  bool GridsOn = false;
  /// Pixels of the last capture, kept so that a movie asks for their memory once.
  std::vector<std::uint8_t> CapturedRows;
  /// What the last two frames were drawn from, as it stood at their ends.
  FrameKey LastKey, KeyBefore;
  bool IsInFrame = false;
  /// A frame of the running movie could not be written, and that was told.
  bool FrameLossTold = false;
  /// The rows are a client's: one point with one event is a plot too.
  bool RowsAreChanged = false;
  /// The number of the load whose view stays though its rows change; -1 for none.
  int LoadOfKeptView = -1;
  /// Ticks from 1 to 100, and from 1 to 5; 0 before the first one.
  int TickCycle = 0;
  int TickPhase = 0;
};

}  // namespace quorb
