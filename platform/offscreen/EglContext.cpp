#include "EglContext.h"

#include <EGL/egl.h>
#include <EGL/eglext.h>

#include <array>
#include <cstdio>
#include <sstream>
#include <utility>
#include <vector>

namespace quorb {

struct EglContext::Handles {
  EGLDisplay display = EGL_NO_DISPLAY;
  EGLSurface surface = EGL_NO_SURFACE;
  EGLContext context = EGL_NO_CONTEXT;
};

namespace {

/// Whether a list of names separated by blanks holds the name.
bool HasExtension(const char* list, const std::string& name) {
  if (list == nullptr) return false;
  std::istringstream names(list);
  std::string one;
  while (names >> one) {
    if (one == name) return true;
  }
  return false;
}

std::string EglFailure(const std::string& what) {
  std::array<char, 16> code{};
  std::snprintf(code.data(), code.size(), "0x%04X", static_cast<unsigned>(eglGetError()));
  return what + " (EGL error " + code.data() + ")";
}

/// Displays that need no window, the most independent first. None of them is initialised.
std::vector<std::pair<std::string, EGLDisplay>> Candidates() {
  std::vector<std::pair<std::string, EGLDisplay>> found;
  const char* extensions = eglQueryString(EGL_NO_DISPLAY, EGL_EXTENSIONS);
  if (HasExtension(extensions, "EGL_MESA_platform_surfaceless")) {
    found.emplace_back("surfaceless",
                       eglGetPlatformDisplay(EGL_PLATFORM_SURFACELESS_MESA, EGL_DEFAULT_DISPLAY, nullptr));
  }
  if (HasExtension(extensions, "EGL_EXT_platform_device")) {
    const auto queryDevices =
        reinterpret_cast<PFNEGLQUERYDEVICESEXTPROC>(eglGetProcAddress("eglQueryDevicesEXT"));
    std::array<EGLDeviceEXT, 16> devices{};
    EGLint count = 0;
    if (queryDevices != nullptr &&
        queryDevices(static_cast<EGLint>(devices.size()), devices.data(), &count)) {
      for (EGLint i = 0; i < count; ++i) {
        found.emplace_back(
            "device " + std::to_string(i),
            eglGetPlatformDisplay(EGL_PLATFORM_DEVICE_EXT, devices.at(static_cast<std::size_t>(i)), nullptr));
      }
    }
  }
  found.emplace_back("default display", eglGetDisplay(EGL_DEFAULT_DISPLAY));
  return found;
}

}  // namespace

bool EglContext::TryDisplay(Handles& handles, std::string& reason) {
  if (handles.display == EGL_NO_DISPLAY) {
    reason = EglFailure("no such display");
    return false;
  }
  if (eglInitialize(handles.display, nullptr, nullptr) == EGL_FALSE) {
    reason = EglFailure("it does not start");
    return false;
  }
  if (eglBindAPI(EGL_OPENGL_API) == EGL_FALSE) {
    reason = EglFailure("it has no desktop OpenGL");
    return false;
  }
  const bool surfaceless =
      HasExtension(eglQueryString(handles.display, EGL_EXTENSIONS), "EGL_KHR_surfaceless_context");
  const std::array<EGLint, 5> wanted{EGL_RENDERABLE_TYPE, EGL_OPENGL_BIT, EGL_SURFACE_TYPE,
                                     surfaceless ? 0 : EGL_PBUFFER_BIT, EGL_NONE};
  EGLConfig config = nullptr;
  EGLint count = 0;
  if (eglChooseConfig(handles.display, wanted.data(), &config, 1, &count) == EGL_FALSE || count < 1) {
    reason = EglFailure("it has no suitable buffers");
    return false;
  }
  handles.context = eglCreateContext(handles.display, config, EGL_NO_CONTEXT, nullptr);
  if (handles.context == EGL_NO_CONTEXT) {
    reason = EglFailure("it gives no context");
    return false;
  }
  if (!surfaceless) {
    const std::array<EGLint, 5> onePixel{EGL_WIDTH, 1, EGL_HEIGHT, 1, EGL_NONE};
    handles.surface = eglCreatePbufferSurface(handles.display, config, onePixel.data());
  }
  if (eglMakeCurrent(handles.display, handles.surface, handles.surface, handles.context) == EGL_FALSE) {
    reason = EglFailure("its context cannot be used");
    return false;
  }
  return true;
}

std::unique_ptr<EglContext> EglContext::Create(std::string& error) {
  error = "OpenGL cannot be started without a window.";
  for (const auto& [name, display] : Candidates()) {
    // Owned from here on, so that what was made before a failure goes again.
    std::unique_ptr<EglContext> made(new EglContext(std::make_unique<Handles>()));
    made->handles->display = display;
    std::string reason;
    if (TryDisplay(*made->handles, reason)) {
      error.clear();
      return made;
    }
    error.append(" Tried ").append(name).append(": ").append(reason).append(".");
  }
  error += " Install the packages libegl1, libegl-mesa0 and libgl1-mesa-dri.";
  return nullptr;
}

EglContext::EglContext(std::unique_ptr<Handles> made) : handles(std::move(made)) {}

EglContext::~EglContext() {
  // The display itself stays open: all users of it in this process share one.
  if (handles->context != EGL_NO_CONTEXT && eglGetCurrentContext() == handles->context) {
    eglMakeCurrent(handles->display, EGL_NO_SURFACE, EGL_NO_SURFACE, EGL_NO_CONTEXT);
  }
  if (handles->surface != EGL_NO_SURFACE) eglDestroySurface(handles->display, handles->surface);
  if (handles->context != EGL_NO_CONTEXT) eglDestroyContext(handles->display, handles->context);
}

bool EglContext::MakeCurrent() const {
  return eglMakeCurrent(handles->display, handles->surface, handles->surface, handles->context) == EGL_TRUE;
}

}  // namespace quorb
