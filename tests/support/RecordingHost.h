#pragma once

#include <deque>
#include <map>
#include <string>

#include "GlRecorder.h"
#include "glCtl.h"

namespace quorb {

/// A host control for tests: it notes every call into the list of the OpenGL recorder, as "Camera.SetUp(0, 1,
/// 0)", and gives back what was set.
class RecordingHost : public glCtl {
 public:
  struct Point {
    float x = 0, y = 0, z = 0;
  };

  class RecordingCamera : public HostCamera {
   public:
    void GetOrtho(double& left, double& right, double& bottom, double& top) const override {
      RecordCallOf("Camera.GetOrtho");
      left = window[0];
      right = window[1];
      bottom = window[2];
      top = window[3];
    }
    void SetOrtho(double left, double right, double bottom, double top) override {
      RecordCallOf("Camera.SetOrtho", left, right, bottom, top);
      window[0] = left;
      window[1] = right;
      window[2] = bottom;
      window[3] = top;
    }
    void SetFar(double distance) override { RecordCallOf("Camera.SetFar", distance); }
    void SetNear(double distance) override { RecordCallOf("Camera.SetNear", distance); }
    void SetField(double degrees) override { RecordCallOf("Camera.SetField", degrees); }
    int GetProjection() const override {
      RecordCallOf("Camera.GetProjection");
      return projection;
    }
    void SetProjection(int value) override {
      RecordCallOf("Camera.SetProjection", value);
      projection = value;
    }
    void GetPosition(float& x, float& y, float& z) const override {
      Give("Camera.GetPosition", position, x, y, z);
    }
    void SetPosition(float x, float y, float z) override { Take("Camera.SetPosition", position, x, y, z); }
    void GetTarget(float& x, float& y, float& z) const override { Give("Camera.GetTarget", target, x, y, z); }
    void SetTarget(float x, float y, float z) override { Take("Camera.SetTarget", target, x, y, z); }
    void GetUp(float& x, float& y, float& z) const override { Give("Camera.GetUp", up, x, y, z); }
    void SetUp(float x, float y, float z) override { Take("Camera.SetUp", up, x, y, z); }
    void Look(float positionX, float positionY, float positionZ, float targetX, float targetY, float targetZ,
              float upX, float upY, float upZ) override {
      RecordCallOf("Camera.Look", positionX, positionY, positionZ, targetX, targetY, targetZ, upX, upY, upZ);
      position = {positionX, positionY, positionZ};
      target = {targetX, targetY, targetZ};
      up = {upX, upY, upZ};
    }
    void Pan(float dx, float dy) override { RecordCallOf("Camera.Pan", dx, dy); }
    void Zoom(float factor) override { RecordCallOf("Camera.Zoom", factor); }
    void Dolly(float share) override { RecordCallOf("Camera.Dolly", share); }
    void Pitch(float degrees) override { RecordCallOf("Camera.Pitch", degrees); }
    void Yaw(float degrees) override { RecordCallOf("Camera.Yaw", degrees); }
    void Roll(float degrees) override { RecordCallOf("Camera.Roll", degrees); }

    double window[4] = {-1, 1, -1, 1};
    int projection = 1;
    Point position, target, up;

   private:
    static void Give(const char* call, const Point& from, float& x, float& y, float& z) {
      RecordCallOf(call);
      x = from.x;
      y = from.y;
      z = from.z;
    }
    static void Take(const char* call, Point& to, float x, float y, float z) {
      RecordCallOf(call, x, y, z);
      to = {x, y, z};
    }
  };

  class RecordingLight : public HostLight {
   public:
    void SetAmbient(float red, float green, float blue, float alpha) override {
      RecordCallOf(name + ".SetAmbient", red, green, blue, alpha);
    }
    void SetDiffuse(float red, float green, float blue, float alpha) override {
      RecordCallOf(name + ".SetDiffuse", red, green, blue, alpha);
    }
    void SetSpecular(float red, float green, float blue, float alpha) override {
      RecordCallOf(name + ".SetSpecular", red, green, blue, alpha);
    }
    void SetPosition(float x, float y, float z) override { RecordCallOf(name + ".SetPosition", x, y, z); }
    void SetEnabled(bool enabled) override { RecordCallOf(name + ".SetEnabled", enabled); }

    std::string name;
  };

  class RecordingMaterial : public HostMaterial {
   public:
    void SetFace(unsigned face) override { RecordCallOf(name + ".SetFace", face); }
    void SetAmbient(float red, float green, float blue, float alpha) override {
      RecordCallOf(name + ".SetAmbient", red, green, blue, alpha);
    }
    void SetDiffuse(float red, float green, float blue, float alpha) override {
      RecordCallOf(name + ".SetDiffuse", red, green, blue, alpha);
    }
    void SetSpecular(float red, float green, float blue, float alpha) override {
      RecordCallOf(name + ".SetSpecular", red, green, blue, alpha);
    }
    void SetSpecExp(float exponent) override { RecordCallOf(name + ".SetSpecExp", exponent); }

    std::string name;
  };

  /// A texture is named by the order of its making: "Texture(1)". A path that ends with `missingFile` does
  /// not load.
  class RecordingTexture : public HostTexture {
   public:
    bool Load(const std::string& path, std::string& error) override {
      RecordCallOf(name + ".Load", path);
      hasPicture = missingFile.empty() || !path.ends_with(missingFile);
      if (!hasPicture) error = "No file " + path;
      return hasPicture;
    }
    bool HasPicture() const override { return hasPicture; }
    void Bind() override { RecordCallOf(name + ".Bind"); }

    std::string name;
    std::string missingFile;
    bool hasPicture = false;
  };

  /// Fonts get the handles 1, 2, 3 in the order of their making.
  class RecordingText : public HostText {
   public:
    void NewOutlineFont(int deviceHandle, int& handle, const std::string& face, bool bold, bool italic,
                        double extrusion) override {
      RecordCallOf("Text.NewOutlineFont", deviceHandle, face, bold, italic, extrusion);
      handle = ++fonts;
    }
    void NewBitmapFont(int deviceHandle, int& handle, const std::string& face, bool bold, bool italic,
                       int size) override {
      RecordCallOf("Text.NewBitmapFont", deviceHandle, face, bold, italic, size);
      handle = ++fonts;
    }
    void Draw3D(int font, const std::string& text, double x, double y, double z, double size,
                int colour) override {
      RecordCallOf("Text.Draw3D", font, text, x, y, z, size, colour);
    }
    void DrawBitmap(int font, const std::string& text, double x, double y, double z, int colour) override {
      RecordCallOf("Text.DrawBitmap", font, text, x, y, z, colour);
    }

    int fonts = 0;
  };

  class RecordingAnimation : public HostAnimation {
   public:
    bool Enabled() const override { return enabled; }
    void SetEnabled(bool on) override {
      RecordCallOf("Animation.SetEnabled", on);
      enabled = on;
    }
    void Update() override { RecordCallOf("Animation.Update"); }

    bool enabled = false;
  };

  void Redraw() override { RecordCallOf("Redraw"); }
  void PrintText(int x, int y, const std::string& words) override { RecordCallOf("PrintText", x, y, words); }
  void DrawGrids() override { RecordCallOf("DrawGrids"); }
  void SetDepthBuffer(bool wanted) override { RecordCallOf("SetDepthBuffer", wanted); }
  void SetDepthTest(bool on) override { RecordCallOf("SetDepthTest", on); }
  void SetAntialiasing(bool on) override { RecordCallOf("SetAntialiasing", on); }
  void SetSize(double x, double y, double z) override { RecordCallOf("SetSize", x, y, z); }

  RecordingCamera& Camera() override { return camera; }
  RecordingLight& Lights(int number) override {
    RecordingLight& light = lights[number];
    light.name = "Lights(" + std::to_string(number) + ")";
    return light;
  }
  RecordingMaterial& Materials(int number) override {
    RecordCallOf("Materials", number);
    RecordingMaterial& material = materials[number];
    material.name = "Materials(" + std::to_string(number) + ")";
    return material;
  }
  RecordingMaterial& NewMaterial() override {
    RecordCallOf("NewMaterial");
    ownMaterial.name = "Material";
    return ownMaterial;
  }
  RecordingTexture& NewTexture() override {
    RecordCallOf("NewTexture");
    RecordingTexture& texture = textures.emplace_back();
    texture.name = "Texture(" + std::to_string(textures.size()) + ")";
    texture.missingFile = missingFile;
    return texture;
  }
  RecordingText& Text() override { return text; }
  RecordingAnimation& Animation() override { return animation; }
  void ReturnList(unsigned list) override { RecordCallOf("ReturnList", list); }
  void SetMousePointer(int id, const std::string& icon) override {
    RecordCallOf("SetMousePointer", id, icon);
  }
  void ShowBusy(bool busy) override { RecordCallOf("ShowBusy", busy); }
  void TrackballStart(int button, int x, int y) override { RecordCallOf("TrackballStart", button, x, y); }
  void TrackballMove(int x, int y) override { RecordCallOf("TrackballMove", x, y); }
  void TrackballEnd() override { RecordCallOf("TrackballEnd"); }
  bool MakeCurrent() override {
    RecordCallOf("MakeCurrent");
    return hasPicture;
  }
  void DoneCurrent() override { RecordCallOf("DoneCurrent"); }
  bool BeginReading() override {
    RecordCallOf("BeginReading");
    return hasPicture;
  }
  void EndReading() override { RecordCallOf("EndReading"); }
  int hDC() const override {
    RecordCallOf("hDC");
    return 7;
  }
  int Width() const override { return width; }
  int Height() const override { return height; }

  int width = 640, height = 480;
  /// Whether a frame was drawn that can be read.
  bool hasPicture = true;

  RecordingCamera camera;
  std::map<int, RecordingLight> lights;
  std::map<int, RecordingMaterial> materials;
  RecordingMaterial ownMaterial;
  std::deque<RecordingTexture> textures;
  /// Given to the textures made from here on.
  std::string missingFile;
  RecordingText text;
  RecordingAnimation animation;
};

}  // namespace quorb
