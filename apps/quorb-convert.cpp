#include <chrono>
#include <cmath>
#include <ctime>
#include <iostream>
#include <optional>

#include "CommandLine.h"
#include "StateConversion.h"
#include "StateText.h"
#include "SystemRegion.h"
#include "TitleWords.h"

namespace quorb {

namespace {

constexpr std::string_view kHelp =
    R"(Usage: quorb-convert IN -o OUT.qbv [--scale S] [--title T]

Turns an ephemeris into a data file for the viewer: positions in kilometres,
times as serial days (days since 1899-12-30).

  IN          one of these, told apart by what the file holds:
              - a CCSDS orbit ephemeris message, KVN or XML
              - a table of text whose header line names the columns time, x, y, z
                (epochs or serial days; kilometres; other columns are ignored)
  -o OUT.qbv  the data file to write; one of that name is replaced
  --scale S   the scale factor, above 0 (default 0.01); with 1 the viewer scales
              each axis by itself and draws no bodies
  --title T   the title (default: the object's name, else the name of IN)
  --help      show this text
  --version   show the version

The title must not hold a keyword that changes how the rows are read, such as
"km" or "day".

Exit status: 0 done, 1 a file could not be read or written, 2 wrong call.
)";

/// The conversion that the arguments ask for, or none with the reason in `error`.
std::optional<StateConversion> ReadCall(const CommandLine& call, std::string& error) {
  const std::optional<std::string> output = call.Value("-o");
  const std::optional<double> scale = ParseNumberField(call.Value("--scale").value_or("0.01"));
  const std::optional<std::string> title = call.Value("--title");
  const std::string titleFault = title ? TitleFault(*title) : std::string();
  if (!call.error.empty()) {
    error = call.error;
  } else if (call.operands.size() != 1) {
    error = "one input file is needed, " + std::to_string(call.operands.size()) + " were named";
  } else if (!output || output->empty()) {
    error = "the output file is missing: name it with -o";
  } else if (!scale || *scale <= 0) {
    error = "the scale " + QuotedForMessage(*call.Value("--scale")) + " is no number above 0";
  } else if (!titleFault.empty()) {
    error = titleFault + ": choose another --title";
  }
  if (!error.empty()) return std::nullopt;
  StateConversion conversion;
  conversion.inputPath = call.operands[0];
  conversion.outputPath = *output;
  conversion.scale = *scale;
  conversion.title = title;
  return conversion;
}

std::tm LocalTimeNow() {
  const std::time_t now = std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
  const std::tm* const local = std::localtime(&now);
  return local == nullptr ? std::tm{} : *local;
}

int Run(const std::vector<std::string>& arguments) {
  if (AnswerHelpOrVersion(arguments, "quorb-convert", kHelp)) return kExitOk;
  SystemRegion region;
  SetRegionalSettings(&region);
  std::string error;
  std::optional<StateConversion> conversion =
      ReadCall(ParseCommandLine(arguments, {"-o", "--scale", "--title"}), error);
  if (!conversion) {
    std::cerr << "quorb-convert: " << error << " (see quorb-convert --help)\n";
    return kExitWrongCall;
  }
  conversion->written = LocalTimeNow();
  const ConversionResult result = ConvertStates(*conversion);
  for (const std::string& warning : result.warnings)
    std::cerr << "quorb-convert: warning: " << warning << "\n";
  if (result.error.empty()) return kExitOk;
  std::cerr << "quorb-convert: " << result.error << "\n";
  return kExitFailed;
}

}  // namespace

}  // namespace quorb

int main(int argc, char** argv) {
  return quorb::Run(quorb::ArgumentsOf(argc, argv));
}
