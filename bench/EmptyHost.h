#pragma once

#include <string>

#include "glCtl.h"

namespace quorb {

/// A host control that does nothing.
class EmptyHost : public glCtl {
 public:
  void Redraw() override {}
  void PrintText(int /*x*/, int /*y*/, const std::string& /*text*/) override {}
  void DrawGrids() override {}
  void SetDepthBuffer(bool /*wanted*/) override {}
  void SetDepthTest(bool /*on*/) override {}
  void SetAntialiasing(bool /*on*/) override {}
  void SetSize(double /*x*/, double /*y*/, double /*z*/) override {}
  HostCamera& Camera() override { return camera_; }
  HostLight& Lights(int /*number*/) override { return light_; }
  HostMaterial& Materials(int /*number*/) override { return material_; }
  HostMaterial& NewMaterial() override { return material_; }
  HostTexture& NewTexture() override { return texture_; }
  HostText& Text() override { return text_; }
  HostAnimation& Animation() override { return animation_; }
  void ReturnList(unsigned /*list*/) override {}
  void SetMousePointer(int /*id*/, const std::string& /*icon*/) override {}
  void ShowBusy(bool /*busy*/) override {}
  void TrackballStart(int /*button*/, int /*x*/, int /*y*/) override {}
  void TrackballMove(int /*x*/, int /*y*/) override {}
  void TrackballEnd() override {}
  bool MakeCurrent() override { return false; }
  void DoneCurrent() override {}
  bool BeginReading() override { return false; }
  void EndReading() override {}
  int hDC() const override { return 0; }
  int Width() const override { return 640; }
  int Height() const override { return 480; }

 private:
  class EmptyCamera : public HostCamera {
   public:
    void GetOrtho(double& /*left*/, double& /*right*/, double& /*bottom*/, double& /*top*/) const override {}
    void SetOrtho(double /*left*/, double /*right*/, double /*bottom*/, double /*top*/) override {}
    void SetFar(double /*distance*/) override {}
    void SetNear(double /*distance*/) override {}
    void SetField(double /*degrees*/) override {}
    int GetProjection() const override { return 1; }
    void SetProjection(int /*projection*/) override {}
    void GetPosition(float& /*x*/, float& /*y*/, float& /*z*/) const override {}
    void SetPosition(float /*x*/, float /*y*/, float /*z*/) override {}
    void GetTarget(float& /*x*/, float& /*y*/, float& /*z*/) const override {}
    void SetTarget(float /*x*/, float /*y*/, float /*z*/) override {}
    void GetUp(float& /*x*/, float& /*y*/, float& /*z*/) const override {}
    void SetUp(float /*x*/, float /*y*/, float /*z*/) override {}
    void Look(float /*positionX*/, float /*positionY*/, float /*positionZ*/, float /*targetX*/,
              float /*targetY*/, float /*targetZ*/, float /*upX*/, float /*upY*/, float /*upZ*/) override {}
    void Pan(float /*dx*/, float /*dy*/) override {}
    void Zoom(float /*factor*/) override {}
    void Dolly(float /*share*/) override {}
    void Pitch(float /*degrees*/) override {}
    void Yaw(float /*degrees*/) override {}
    void Roll(float /*degrees*/) override {}
  };

  class EmptyLight : public HostLight {
   public:
    void SetAmbient(float /*red*/, float /*green*/, float /*blue*/, float /*alpha*/) override {}
    void SetDiffuse(float /*red*/, float /*green*/, float /*blue*/, float /*alpha*/) override {}
    void SetSpecular(float /*red*/, float /*green*/, float /*blue*/, float /*alpha*/) override {}
    void SetPosition(float /*x*/, float /*y*/, float /*z*/) override {}
    void SetEnabled(bool /*enabled*/) override {}
  };

  class EmptyMaterial : public HostMaterial {
   public:
    void SetFace(unsigned /*face*/) override {}
    void SetAmbient(float /*red*/, float /*green*/, float /*blue*/, float /*alpha*/) override {}
    void SetDiffuse(float /*red*/, float /*green*/, float /*blue*/, float /*alpha*/) override {}
    void SetSpecular(float /*red*/, float /*green*/, float /*blue*/, float /*alpha*/) override {}
    void SetSpecExp(float /*exponent*/) override {}
  };

  class EmptyTexture : public HostTexture {
   public:
    bool Load(const std::string& /*path*/, std::string& /*error*/) override { return false; }
    bool HasPicture() const override { return false; }
    void Bind() override {}
  };

  class EmptyText : public HostText {
   public:
    void NewOutlineFont(int /*deviceHandle*/, int& /*handle*/, const std::string& /*face*/, bool /*bold*/,
                        bool /*italic*/, double /*extrusion*/) override {}
    void NewBitmapFont(int /*deviceHandle*/, int& /*handle*/, const std::string& /*face*/, bool /*bold*/,
                       bool /*italic*/, int /*size*/) override {}
    void Draw3D(int /*font*/, const std::string& /*text*/, double /*x*/, double /*y*/, double /*z*/,
                double /*size*/, int /*colour*/) override {}
    void DrawBitmap(int /*font*/, const std::string& /*text*/, double /*x*/, double /*y*/, double /*z*/,
                    int /*colour*/) override {}
  };

  class EmptyAnimation : public HostAnimation {
   public:
    bool Enabled() const override { return false; }
    void SetEnabled(bool /*enabled*/) override {}
    void Update() override {}
  };

  EmptyCamera camera_;
  EmptyLight light_;
  EmptyMaterial material_;
  EmptyTexture texture_;
  EmptyText text_;
  EmptyAnimation animation_;
};

}  // namespace quorb
