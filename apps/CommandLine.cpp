#include "CommandLine.h"

#include <algorithm>
#include <iostream>

namespace quorb {

namespace {

bool Holds(const std::vector<std::string_view>& names, std::string_view name) {
  return std::find(names.begin(), names.end(), name) != names.end();
}

bool IsOption(const std::string& argument) {
  return argument.size() > 1 && argument[0] == '-';
}

/// The place of the "=" of "--name=value"; npos when there is none.
std::size_t EqualsOf(const std::string& argument) {
  return argument.compare(0, 2, "--") == 0 ? argument.find('=') : std::string::npos;
}

/// Takes the option at `index` and leaves `index` on its last argument.
void TakeOption(const std::vector<std::string>& arguments, std::size_t& index,
                const std::vector<std::string_view>& valued, const std::vector<std::string_view>& flags,
                CommandLine& result) {
  const std::string& argument = arguments[index];
  const std::size_t equals = EqualsOf(argument);
  const std::string name = argument.substr(0, equals);
  if (!Holds(valued, name)) {
    if (Holds(flags, name) && equals == std::string::npos) {
      result.options.emplace_back(name, "");
    } else {
      result.error = "unknown option " + argument;
    }
  } else if (equals != std::string::npos) {
    result.options.emplace_back(name, argument.substr(equals + 1));
  } else if (index + 1 < arguments.size()) {
    result.options.emplace_back(name, arguments[++index]);
  } else {
    result.error = "option " + name + " has no value";
  }
}

}  // namespace

bool CommandLine::Has(std::string_view option) const {
  return Value(option).has_value();
}

std::optional<std::string> CommandLine::Value(std::string_view option) const {
  std::optional<std::string> last;
  for (const auto& [name, value] : options) {
    if (name == option) last = value;
  }
  return last;
}

std::vector<std::string> CommandLine::Values(std::string_view option) const {
  std::vector<std::string> values;
  for (const auto& [name, value] : options) {
    if (name == option) values.push_back(value);
  }
  return values;
}

std::vector<std::string> ArgumentsOf(int count, const char* const* arguments) {
  return count > 1 ? std::vector<std::string>(arguments + 1, arguments + count) : std::vector<std::string>();
}

CommandLine ParseCommandLine(const std::vector<std::string>& arguments,
                             const std::vector<std::string_view>& valued,
                             const std::vector<std::string_view>& flags) {
  CommandLine result;
  bool optionsEnded = false;
  for (std::size_t i = 0; i < arguments.size() && result.error.empty(); ++i) {
    if (optionsEnded || !IsOption(arguments[i])) {
      result.operands.push_back(arguments[i]);
    } else if (arguments[i] == "--") {
      optionsEnded = true;
    } else {
      TakeOption(arguments, i, valued, flags, result);
    }
  }
  return result;
}

bool AnswerHelpOrVersion(const std::vector<std::string>& arguments, std::string_view program,
                         std::string_view helpText) {
  for (const std::string& argument : arguments) {
    if (argument == "--") return false;
    if (argument == "--help") {
      std::cout << helpText;
      return true;
    }
    if (argument == "--version") {
      std::cout << program << " " << QUORB_VERSION << "\n";
      return true;
    }
  }
  return false;
}

}  // namespace quorb
