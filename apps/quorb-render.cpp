#include <unistd.h>

#include <iostream>

#include "CommExcl.h"
#include "CommandLine.h"
#include "ConsoleDialogs.h"
#include "FileAccess.h"
#include "NumberText.h"
#include "Rendering.h"
#include "SystemDesktop.h"
#include "SystemFiles.h"
#include "SystemRegion.h"

namespace quorb {

namespace {

constexpr std::string_view kHelp =
    R"(Usage: quorb-render FILE -o OUT.png|OUT.bmp [--size WxH] [--row N] [--view VIEW]
                   [--zoom FACTOR] [--centre ROW] [--set FIELD=VALUE]...
                   [--frames N --every ROWS]

Draws the picture that the viewer shows of a data file, without a window.

  -o OUT             the picture to write, PNG or BMP by its ending
  --size WxH         width and height in pixels (default 1280x800)
  --row N            the last row that is drawn, from 0 (default: the last of all)
  --view VIEW        isonew:STEP round the Z axis in eight steps, 0 to 7;
                     isonewplus:STEP six corners of a cube, 0 to 5; proj:STEP the
                     eight projections, 0 to 7; iso the plain isometric view
                     (STEP is 0 when left out; without --view as the window does);
                     from:AZIMUTH,ELEVATION with Z upward, from a direction in
                     degrees, of X toward Y and then toward Z
  --zoom FACTOR      shows everything this many times larger (default 1)
  --centre ROW       puts the point of this row, from 0, into the middle
  --set FIELD=VALUE  sets an option of the record USERFLAG, such as
                     ThicknessLinePlot=3 or ColourBackground=255,255,255
  --frames N         a series of N pictures, OUT1.png, OUT2.png and so on, from
                     row 0 or the row of --row on; each shows ...
  --every ROWS       ... this many rows more than the one before, up to the last
  --help             show this text
  --version          show the version

Messages that the viewer would show go to standard error with their titles.
Exit status: 0 done, 1 the file gave no rows or the picture could not be drawn or
written, 2 wrong call.
)";

const std::vector<std::string_view> kOptions = {"-o",       "--size", "--row",    "--view", "--zoom",
                                                "--centre", "--set",  "--frames", "--every"};

/// One line on a terminal, written over by the next picture's.
void ShowProgress(RenderCall& call) {
  const int total = *call.frames;
  call.written = [total](int number) {
    std::cerr << "\rpicture " << number << " of " << total << (number == total ? "\n" : "") << std::flush;
  };
}

int Run(const std::vector<std::string>& arguments) {
  if (AnswerHelpOrVersion(arguments, "quorb-render", kHelp)) return kExitOk;
  RenderCall call;
  std::string error;
  if (!ReadRenderCall(ParseCommandLine(arguments, kOptions), call, error)) {
    std::cerr << "quorb-render: " << error << " (see quorb-render --help)\n";
    return kExitWrongCall;
  }
  const bool showsProgress = call.frames && isatty(STDERR_FILENO) != 0;
  if (showsProgress) ShowProgress(call);
  ConsoleDialogs dialogs;
  SystemFiles files;
  SystemRegion region;
  SystemDesktop desktop;
  SetDialogs(&dialogs);
  SetFileAccess(&files);
  SetRegionalSettings(&region);
  SetDesktop(&desktop);
  if (Render(call, error)) return kExitOk;
  std::cerr << (showsProgress ? "\nquorb-render: " : "quorb-render: ") << error << '\n';
  return kExitFailed;
}

}  // namespace

}  // namespace quorb

int main(int argc, char** argv) {
  return quorb::Run(quorb::ArgumentsOf(argc, argv));
}
