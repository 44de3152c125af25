#pragma once

#include <ctime>
#include <optional>
#include <string>
#include <vector>

namespace quorb {

/// One conversion of an ephemeris file into a data file.
struct StateConversion {
  std::string inputPath;
  std::string outputPath;
  double scale = 0.01;  ///< Finite, above 0.
  std::optional<std::string>
      title;             ///< One that TitleFault passes; none for the object's or the file's name.
  std::tm written = {};  ///< Time of writing for the header line.
};

/// How it ended: an empty `error` means that the output file is there.
struct ConversionResult {
  std::string error;  ///< Names the file, the line where there is one, what is wrong, what to do.
  std::vector<std::string> warnings;  ///< Things that the viewer will do with the title or the centre.
};

/// Reads the input, whatever reader knows it, and writes the output. The output appears whole or not at all:
/// it is written under a name beside it that is not taken, and renamed.
ConversionResult ConvertStates(const StateConversion& conversion);

}  // namespace quorb
