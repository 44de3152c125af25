#include "Rendering.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>

#include "CommExcl.h"
#include "Mth.h"
#include "NamedFile.h"
#include "OffscreenHost.h"
#include "PlotData.h"
#include "SatelliteControls.h"
#include "UserFlag.h"
#include "frmMain.h"

namespace quorb {

namespace {

constexpr int kLargestSide = 16384;
constexpr double kBrightest = 255;
constexpr int kMostFrames = 1000000;
constexpr double kUpwardAxis = 3;
constexpr const char* kFromDirection = "from";
constexpr double kSteepest = 90;
constexpr double kLargestZoom = 1e6;
constexpr float kDepth = 10000;

template <typename Number>
bool ReadNumber(std::string_view text, Number& number) {
  const char* const end = text.data() + text.size();
  const auto result = std::from_chars(text.data(), end, number);
  return !text.empty() && result.ec == std::errc() && result.ptr == end;
}

bool EndsWith(const std::string& text, std::string_view ending) {
  return text.size() > ending.size() && text.compare(text.size() - ending.size(), ending.size(), ending) == 0;
}

bool ReadSize(const std::string& text, RenderCall& call) {
  const std::size_t by = text.find('x');
  return by != std::string::npos && ReadNumber(std::string_view(text).substr(0, by), call.width) &&
         ReadNumber(std::string_view(text).substr(by + 1), call.height) && call.width >= 1 &&
         call.height >= 1 && call.width <= kLargestSide && call.height <= kLargestSide;
}

bool ReadSetting(const std::string& text, OptionSetting& setting) {
  const std::size_t equals = text.find('=');
  if (equals == std::string::npos) return false;
  setting.field = text.substr(0, equals);
  std::string_view rest = std::string_view(text).substr(equals + 1);
  for (;;) {
    const std::size_t comma = rest.find(',');
    double number = 0;
    if (!ReadNumber(rest.substr(0, comma), number) || !std::isfinite(number)) return false;
    setting.numbers.push_back(number);
    if (comma == rest.npos) break;
    rest.remove_prefix(comma + 1);
  }
  UserFlagRecord unused;
  const bool isColour = setting.numbers.size() == 3;
  const bool fits = std::all_of(setting.numbers.begin(), setting.numbers.end(), [isColour](double number) {
    return !isColour || (number >= 0 && number <= kBrightest);
  });
  return fits && FieldNumbers(unused, setting.field).size() == setting.numbers.size();
}

/// Steps of a walk through views; 0 for a word that names none.
int StepsOf(const std::string& mode) {
  if (mode == "isonewplus") return 6;
  return mode == "isonew" || mode == "proj" || mode == "iso" ? 8 : 0;
}

bool ReadDirection(std::string_view text, WantedView& view) {
  const std::size_t comma = text.find(',');
  return comma != text.npos && ReadNumber(text.substr(0, comma), view.azimuth) &&
         ReadNumber(text.substr(comma + 1), view.elevation) && std::isfinite(view.azimuth) &&
         std::abs(view.elevation) <= kSteepest;
}

bool ReadView(const std::string& text, WantedView& view) {
  const std::size_t colon = text.find(':');
  view.mode = text.substr(0, colon);
  if (view.mode == kFromDirection && colon != std::string::npos)
    return ReadDirection(std::string_view(text).substr(colon + 1), view);
  if (StepsOf(view.mode) == 0) return false;
  if (colon == std::string::npos) return true;
  return ReadNumber(std::string_view(text).substr(colon + 1), view.step) && view.step >= 0 &&
         view.step < StepsOf(view.mode);
}

void LookFrom(double azimuth, double elevation, HostCamera& camera) {
  constexpr double kEye = 100;
  const double a = DegToRad(azimuth);
  const double e = DegToRad(elevation);
  const auto along = [](double share) { return static_cast<float>(kEye * share); };
  camera.Look(along(std::cos(e) * std::cos(a)), along(std::cos(e) * std::sin(a)), along(std::sin(e)), 0, 0, 0,
              0, 0, 1);
  camera.SetFar(kDepth);
  camera.SetNear(-kDepth);
  camera.SetProjection(1);
}

// The camera steps its walk with each call: it is set one step before the wanted one.
void ApplyView(const WantedView& view, HostCamera& camera) {
  if (view.mode == kFromDirection) return LookFrom(view.azimuth, view.elevation, camera);
  frmMain->Check9.Tag.clear();
  const int steps = std::max(StepsOf(view.mode), 1);
  const int before = (view.step + steps - 1) % steps;
  TheScene->CameraSteps.ViewStep = before;
  TheScene->CameraSteps.ProjStep = before;
  TheScene->CameraSet(view.mode, kUpwardAxis, 1);
}

void MoveTo(const double* point, HostCamera& camera) {
  float x = 0, y = 0, z = 0;
  camera.GetPosition(x, y, z);
  const auto dx = static_cast<float>(point[0]);
  const auto dy = static_cast<float>(point[1]);
  const auto dz = static_cast<float>(point[2]);
  camera.SetPosition(x + dx, y + dy, z + dz);
  camera.SetTarget(dx, dy, dz);
}

void PlaceCamera(const RenderCall& call, HostCamera& camera) {
  if (call.view) ApplyView(*call.view, camera);
  if (call.centre) MoveTo(dataXYZT[*call.centre] + 1, camera);
  camera.Zoom(static_cast<float>(call.zoom));
}

void ApplySettings(const std::vector<OptionSetting>& settings) {
  for (const OptionSetting& setting : settings) {
    const std::vector<double*> numbers = FieldNumbers(USERFLAG, setting.field);
    for (std::size_t i = 0; i < numbers.size(); ++i)
      *numbers[i] = setting.numbers[i];
  }
  int shapes = 0;
  Combo2_InitList(shapes);
}

bool LoadInto(OffscreenHost& host, const RenderCall& call, std::string& error) {
  NameDataFile(call.dataFile);
  Form_Load("", host);
  if (!host.Start(HostEventsOfWindow(), error)) return false;
  frmMain->form.Width = call.width * kTwipsPerPixel;
  frmMain->form.Height = call.height * kTwipsPerPixel + frmMain->StatusBar1.Height;
  Form_Resize();
  Form_Activate();
  if (LastLoad().rows > 0) return true;
  error = "no rows were read from " + call.dataFile + ": " + NoRowsReason();
  return false;
}

bool WritePicture(const std::string& path, const PixelImage& image, std::string& error) {
  return EndsWith(path, ".bmp") ? WriteBmp(path, image, error) : WritePng(path, image, error);
}

/// The axes, and with them the local frame, lag one frame; so do the ray, the arrays' Sun and the thrust.
void DrawSettled(OffscreenHost& host) {
  host.Frame();
  host.Frame();
}

bool RenderOne(OffscreenHost& host, const RenderCall& call, std::string& error) {
  TheScene->CURRINDEXI = call.row.value_or(LastPoint);
  DrawSettled(host);
  return WritePicture(call.picture, host.Pixels(), error);
}

bool RenderSeries(OffscreenHost& host, const RenderCall& call, std::string& error) {
  std::int64_t row = call.row.value_or(0);
  for (int number = 1; number <= *call.frames; ++number) {
    TheScene->CURRINDEXI = static_cast<std::int32_t>(std::min<std::int64_t>(row, LastPoint));
    DrawSettled(host);
    if (!WritePicture(FrameName(call.picture, number), host.Pixels(), error)) return false;
    if (call.written) call.written(number);
    row += call.every;
  }
  return true;
}

bool HoldsRow(const std::optional<int>& row, std::string& error) {
  if (!row || *row <= LastPoint) return true;
  error = "the plot has no row " + std::to_string(*row) + ": its last one is " + std::to_string(LastPoint);
  return false;
}

/// Takes the row that an option names, if it is given.
bool ReadRow(const CommandLine& line, std::string_view option, std::optional<int>& row, std::string& error) {
  const auto text = line.Value(option);
  if (!text) return true;
  int number = 0;
  if (!ReadNumber(*text, number) || number < 0) {
    error = "the row '" + *text + "' is no whole number from 0 on";
    return false;
  }
  row = number;
  return true;
}

bool ReadZoom(const CommandLine& line, RenderCall& call, std::string& error) {
  const auto text = line.Value("--zoom");
  if (!text || (ReadNumber(*text, call.zoom) && call.zoom >= 1 / kLargestZoom && call.zoom <= kLargestZoom))
    return true;
  error = "the zoom '" + *text + "' is no number from 0.000001 to 1000000";
  return false;
}

bool ReadSeries(const CommandLine& line, RenderCall& call, std::string& error) {
  const auto frames = line.Value("--frames");
  const auto every = line.Value("--every");
  if (frames.has_value() != every.has_value()) {
    error = "--frames and --every go together: the number of pictures, and the rows from one to the next";
    return false;
  }
  if (!frames) return true;
  int count = 0;
  if (!ReadNumber(*frames, count) || count < 1 || count > kMostFrames) {
    error = "the number of pictures '" + *frames + "' is no whole number from 1 to 1000000";
    return false;
  }
  if (!ReadNumber(*every, call.every) || call.every < 1) {
    error = "the step '" + *every + "' is no whole number of rows from 1 on";
    return false;
  }
  call.frames = count;
  return true;
}

}  // namespace

bool ReadRenderCall(const CommandLine& line, RenderCall& call, std::string& error) {
  error = line.error;
  if (!error.empty()) return false;
  if (line.operands.size() != 1) {
    error = "name one data file";
    return false;
  }
  call.dataFile = line.operands[0];
  call.picture = line.Value("-o").value_or("");
  if (!EndsWith(call.picture, ".png") && !EndsWith(call.picture, ".bmp")) {
    error = "name the picture with -o; it ends in .png or .bmp";
    return false;
  }
  const auto size = line.Value("--size");
  if (size && !ReadSize(*size, call)) {
    error = "the size '" + *size + "' is not of the form WIDTHxHEIGHT, from 1x1 to 16384x16384";
    return false;
  }
  if (!ReadRow(line, "--row", call.row, error) || !ReadRow(line, "--centre", call.centre, error) ||
      !ReadZoom(line, call, error)) {
    return false;
  }
  if (const auto view = line.Value("--view")) {
    call.view.emplace();
    if (!ReadView(*view, *call.view)) {
      error = "the view '" + *view +
              "' is not isonew, isonewplus, proj or iso, with the number of a step behind it (:0 on) or "
              "none, nor from:AZIMUTH,ELEVATION with an elevation from -90 to 90";
      return false;
    }
  }
  for (const std::string& text : line.Values("--set")) {
    OptionSetting setting;
    if (!ReadSetting(text, setting)) {
      error = "'" + text +
              "' is no option: it takes FIELD=NUMBER, or FIELD=RED,GREEN,BLUE from 0 to 255 for a colour";
      return false;
    }
    call.settings.push_back(setting);
  }
  return ReadSeries(line, call, error);
}

std::string FrameName(const std::string& picture, int number) {
  const std::size_t ending = picture.rfind('.');
  return picture.substr(0, ending) + std::to_string(number) + picture.substr(ending);
}

bool Render(const RenderCall& call, std::string& error) {
  const auto host = OffscreenHost::Create(call.width, call.height, error);
  if (host == nullptr || !LoadInto(*host, call, error)) return false;
  if (!HoldsRow(call.row, error) || !HoldsRow(call.centre, error)) return false;
  ApplySettings(call.settings);
  // The first frame digests the plot.
  host->Frame();
  PlaceCamera(call, host->Camera());
  return call.frames ? RenderSeries(*host, call, error) : RenderOne(*host, call, error);
}

}  // namespace quorb
