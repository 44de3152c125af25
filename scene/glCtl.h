#pragma once

#include <string>

namespace quorb {

/// The camera of the host control. The host sets the matrices from it before each draw event. Distances are
/// in units of the scene.
class HostCamera {
 public:
  virtual ~HostCamera() = default;

  /// The orthographic window. The host widens its shorter side to the shape of the view.
  virtual void GetOrtho(double& left, double& right, double& bottom, double& top) const = 0;
  virtual void SetOrtho(double left, double right, double bottom, double top) = 0;

  /// Clipping distances along the line of sight from the eye; a negative one lies behind the eye.
  virtual void SetFar(double distance) = 0;
  virtual void SetNear(double distance) = 0;

  /// Field of view in degrees, for the perspective projection only; 180 leaves it at the host's own.
  virtual void SetField(double degrees) = 0;

  /// 0 perspective, else orthographic.
  virtual int GetProjection() const = 0;
  virtual void SetProjection(int projection) = 0;

  virtual void GetPosition(float& x, float& y, float& z) const = 0;
  virtual void SetPosition(float x, float y, float z) = 0;
  virtual void GetTarget(float& x, float& y, float& z) const = 0;
  virtual void SetTarget(float x, float y, float z) = 0;
  virtual void GetUp(float& x, float& y, float& z) const = 0;
  virtual void SetUp(float x, float y, float z) = 0;

  /// Position, target and up vector at once.
  virtual void Look(float positionX, float positionY, float positionZ, float targetX, float targetY,
                    float targetZ, float upX, float upY, float upZ) = 0;

  /// Moves the view over the scene, in scene units along the screen: with dx above 0 the picture goes to the
  /// right, with dy above 0 upward.
  virtual void Pan(float dx, float dy) = 0;
  /// Widens the angle of the perspective view for a factor below 1, narrows it above 1.
  virtual void Zoom(float factor) = 0;
  /// Moves the eye along its line of sight, in shares of its distance to the target; above 0 it comes nearer.
  virtual void Dolly(float share) = 0;
  /// Turns the scene about the screen's X axis, in degrees: above 0 its front goes upward.
  virtual void Pitch(float degrees) = 0;
  /// Turns the scene about the screen's Y axis, in degrees: above 0 its front goes to the left.
  virtual void Yaw(float degrees) = 0;
  /// Turns the scene about the line of sight, in degrees: above 0 counterclockwise.
  virtual void Roll(float degrees) = 0;
};

/// One light of the host control.
class HostLight {
 public:
  virtual ~HostLight() = default;
  virtual void SetAmbient(float red, float green, float blue, float alpha) = 0;
  virtual void SetDiffuse(float red, float green, float blue, float alpha) = 0;
  virtual void SetSpecular(float red, float green, float blue, float alpha) = 0;
  virtual void SetPosition(float x, float y, float z) = 0;
  virtual void SetEnabled(bool enabled) = 0;
};

/// A surface material. Every setter acts at once on what is drawn after it; set the face first.
class HostMaterial {
 public:
  virtual ~HostMaterial() = default;
  /// GL_FRONT, GL_BACK or GL_FRONT_AND_BACK.
  virtual void SetFace(unsigned face) = 0;
  virtual void SetAmbient(float red, float green, float blue, float alpha) = 0;
  virtual void SetDiffuse(float red, float green, float blue, float alpha) = 0;
  virtual void SetSpecular(float red, float green, float blue, float alpha) = 0;
  /// Specular exponent, 0 to 128.
  virtual void SetSpecExp(float exponent) = 0;
};

/// Fonts and text inside the scene. Colours are R x 65536 + G x 256 + B.
class HostText {
 public:
  virtual ~HostText() = default;

  /// Makes an extruded font and gives its handle; a face that is not installed gives the nearest one that is.
  /// `extrusion` is the depth as a share of the letter size.
  virtual void NewOutlineFont(int deviceHandle, int& handle, const std::string& face, bool bold, bool italic,
                              double extrusion) = 0;

  /// Makes a flat font of `size` points and gives its handle.
  virtual void NewBitmapFont(int deviceHandle, int& handle, const std::string& face, bool bold, bool italic,
                             int size) = 0;

  /// Draws solid letters of `size` scene units from the point along X.
  virtual void Draw3D(int font, const std::string& text, double x, double y, double z, double size,
                      int colour) = 0;

  /// Draws flat letters that face the viewer, starting at the point.
  virtual void DrawBitmap(int font, const std::string& text, double x, double y, double z, int colour) = 0;
};

/// The animation clock of the host control.
class HostAnimation {
 public:
  virtual ~HostAnimation() = default;
  virtual bool Enabled() const = 0;
  virtual void SetEnabled(bool enabled) = 0;
  /// Applies the switch, and moves what the host itself animates.
  virtual void Update() = 0;
};

/// A picture that OpenGL lays over a surface.
class HostTexture {
 public:
  virtual ~HostTexture() = default;

  /// Takes the picture of a JPEG file in place of the one before; the context has to be current. False when
  /// there is none to be had, with `error` a sentence for the log; the texture then has no picture.
  virtual bool Load(const std::string& path, std::string& error) = 0;
  virtual bool HasPicture() const = 0;

  /// Makes the texture current: what is lit and drawn behind it shows the picture in the picture's own
  /// colours, or, when there is none, the drawing colour.
  virtual void Bind() = 0;
};

/// The OpenGL host control: it owns the context, clears the colour buffer and sets the matrices before the
/// draw event, calls the overlay event behind it, and shows the frame.
class glCtl {
 public:
  virtual ~glCtl() = default;

  /// Small state text of the window's logic.
  std::string Tag;

  /// Asks for a frame; several requests before it make one.
  virtual void Redraw() = 0;

  /// Text over the finished frame, in pixels from the top left corner of the view to that of the text.
  virtual void PrintText(int x, int y, const std::string& text) = 0;

  /// A reference grid through the origin, to be called at the head of a frame.
  virtual void DrawGrids() = 0;

  /// Whether the context has a depth buffer; set before the context exists.
  virtual void SetDepthBuffer(bool wanted) = 0;
  /// Hidden parts are left out.
  virtual void SetDepthTest(bool on) = 0;
  /// Edges of solid letters are smoothed.
  virtual void SetAntialiasing(bool on) = 0;
  /// Extent of the scene along the three axes, for the grid.
  virtual void SetSize(double x, double y, double z) = 0;

  virtual HostCamera& Camera() = 0;
  /// Lights count from 1.
  virtual HostLight& Lights(int number) = 0;
  /// The host's material list, numbers 1 to 16.
  virtual HostMaterial& Materials(int number) = 0;
  /// A material of the caller's own, that lives as long as the host.
  virtual HostMaterial& NewMaterial() = 0;
  virtual HostText& Text() = 0;
  virtual HostAnimation& Animation() = 0;

  /// Takes a display list that the scene calls no more. The host deletes such lists in batches, between
  /// frames; 0 is no list.
  virtual void ReturnList(unsigned list) = 0;

  /// The shape of the mouse pointer over the plot: 0 an arrow, 1 to 15 the pointers that every desktop has,
  /// 99 the picture `icon` names, 200 to 207 and 210 to 212 those of the mouse modes.
  virtual void SetMousePointer(int id, const std::string& icon) = 0;
  /// The wait pointer over the whole program, while it writes a file.
  virtual void ShowBusy(bool busy) = 0;

  /// The host's own turning of the scene, by a ball under the mouse: it turns while the left button is down
  /// and the pointer is that of the mode "orbit" (207), or the right button and the arrow (0), as in the mode
  /// "select". Pixels from the top left corner.
  virtual void TrackballStart(int button, int x, int y) = 0;
  virtual void TrackballMove(int x, int y) = 0;
  virtual void TrackballEnd() = 0;

  /// Makes the context current, outside of the host's own events. False before it is ready. DoneCurrent puts
  /// the context that was current back.
  virtual bool MakeCurrent() = 0;
  virtual void DoneCurrent() = 0;

  /// Makes the context current, with the picture of the last frame as the one that glReadPixels reads. False
  /// when there is none. EndReading puts the context, and how it takes and gives pixels, back.
  virtual bool BeginReading() = 0;
  virtual void EndReading() = 0;

  /// The device handle that the fonts want.
  virtual int hDC() const = 0;

  /// Size of the view in pixels.
  virtual int Width() const = 0;
  virtual int Height() const = 0;

  /// A texture of the caller's own, without a picture, that lives as long as the host.
  virtual HostTexture& NewTexture() = 0;
};

}  // namespace quorb
