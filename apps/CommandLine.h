#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quorb {

/// Exit statuses of the command-line programs.
inline constexpr int kExitOk = 0;
inline constexpr int kExitFailed = 1;
inline constexpr int kExitWrongCall = 2;

/// A command line taken apart.
struct CommandLine {
  std::vector<std::string> operands;
  std::vector<std::pair<std::string, std::string>> options;  ///< Name and value in the order given.
  std::string error;  ///< What is wrong with the call; empty when nothing is.

  /// True when the option was given.
  bool Has(std::string_view option) const;

  /// The value of the option where it was given last.
  std::optional<std::string> Value(std::string_view option) const;

  /// All values of the option in the order given.
  std::vector<std::string> Values(std::string_view option) const;
};

/// The arguments behind the program's name.
std::vector<std::string> ArgumentsOf(int count, const char* const* arguments);

/// Takes the arguments apart. `valued` names the options that take the next argument, or for "--name" also
/// what stands behind "--name=", as their value; `flags` those that take none and get an empty value. Behind
/// "--" all arguments are operands, and so is "-" alone. Any other argument that begins with "-" is an error.
CommandLine ParseCommandLine(const std::vector<std::string>& arguments,
                             const std::vector<std::string_view>& valued,
                             const std::vector<std::string_view>& flags = {});

/// True when "--help" or "--version" is among the arguments before any "--": its text is then on standard
/// output and the program has nothing else to do. The first of the two counts; the version text is the
/// program's name, a blank and the version.
bool AnswerHelpOrVersion(const std::vector<std::string>& arguments, std::string_view program,
                         std::string_view helpText);

}  // namespace quorb
