#include "Rendering.h"

#include <charconv>

#include "CommExcl.h"
#include "NamedFile.h"
#include "OffscreenHost.h"
#include "PlotData.h"
#include "UserFlag.h"
#include "frmMain.h"

namespace quorb {

namespace {

constexpr int kLargestSide = 16384;
constexpr double kTwipsPerPixel = 15;
constexpr int kViewSteps = 8;
constexpr double kUpwardAxis = 3;

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
    if (!ReadNumber(rest.substr(0, comma), number)) return false;
    setting.numbers.push_back(number);
    if (comma == rest.npos) break;
    rest.remove_prefix(comma + 1);
  }
  UserFlagRecord unused;
  return FieldNumbers(unused, setting.field).size() == setting.numbers.size();
}

bool ReadView(const std::string& text, WantedView& view) {
  const std::size_t colon = text.find(':');
  view.mode = text.substr(0, colon);
  if (view.mode != "isonew" && view.mode != "proj" && view.mode != "iso") return false;
  if (colon == std::string::npos) return true;
  return ReadNumber(std::string_view(text).substr(colon + 1), view.step) && view.step >= 0 &&
         view.step < kViewSteps;
}

// The camera steps its walk with each call: it is set one step before the wanted one.
void ApplyView(const WantedView& view) {
  frmMain->Check9.Tag.clear();
  const int before = (view.step + kViewSteps - 1) % kViewSteps;
  TheScene->CameraSteps.ViewStep = before;
  TheScene->CameraSteps.ProjStep = before;
  TheScene->CameraSet(view.mode, kUpwardAxis, 1);
}

void ApplySettings(const std::vector<OptionSetting>& settings) {
  for (const OptionSetting& setting : settings) {
    const std::vector<double*> numbers = FieldNumbers(USERFLAG, setting.field);
    for (std::size_t i = 0; i < numbers.size(); ++i)
      *numbers[i] = setting.numbers[i];
  }
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

bool WritePicture(const RenderCall& call, const PixelImage& image, std::string& error) {
  return EndsWith(call.picture, ".bmp") ? WriteBmp(call.picture, image, error)
                                        : WritePng(call.picture, image, error);
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
  if (const auto row = line.Value("--row")) {
    int number = 0;
    if (!ReadNumber(*row, number) || number < 0) {
      error = "the row '" + *row + "' is no whole number from 0 on";
      return false;
    }
    call.row = number;
  }
  if (const auto view = line.Value("--view")) {
    call.view.emplace();
    if (!ReadView(*view, *call.view)) {
      error = "the view '" + *view + "' is not isonew, proj or iso, with a step :0 to :7 behind it or none";
      return false;
    }
  }
  for (const std::string& text : line.Values("--set")) {
    OptionSetting setting;
    if (!ReadSetting(text, setting)) {
      error = "'" + text + "' is no option: it takes FIELD=NUMBER, or FIELD=RED,GREEN,BLUE for a colour";
      return false;
    }
    call.settings.push_back(setting);
  }
  return true;
}

bool Render(const RenderCall& call, std::string& error) {
  const auto host = OffscreenHost::Create(call.width, call.height, error);
  if (host == nullptr || !LoadInto(*host, call, error)) return false;
  if (call.row && *call.row > LastPoint) {
    error =
        "the plot has no row " + std::to_string(*call.row) + ": its last one is " + std::to_string(LastPoint);
    return false;
  }
  ApplySettings(call.settings);
  // The first frame digests the plot. A frame sets the background and the axes of the next one.
  host->Frame();
  if (call.view) ApplyView(*call.view);
  TheScene->CURRINDEXI = call.row.value_or(LastPoint);
  host->Frame();
  host->Frame();
  return WritePicture(call, host->Pixels(), error);
}

}  // namespace quorb
