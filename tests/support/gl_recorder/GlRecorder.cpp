#include "GlRecorder.h"

#include <charconv>

namespace quorb {

namespace {

std::vector<std::string>& Calls() {
  static std::vector<std::string> calls;
  return calls;
}

template <class Number>
std::string ShortestText(Number value) {
  char text[64];
  const auto end = std::to_chars(text, text + sizeof text, value).ptr;
  return {text, end};
}

}  // namespace

const std::vector<std::string>& RecordedCalls() {
  return Calls();
}

void ClearCalls() {
  Calls().clear();
}

void RecordCallWith(const std::string& name, std::initializer_list<std::string> arguments) {
  std::string list;
  for (const std::string& argument : arguments)
    list += (list.empty() ? "" : ", ") + argument;
  Calls().push_back(name + '(' + list + ')');
}

std::string ArgumentText(float value) {
  return ShortestText(value);
}

std::string ArgumentText(double value) {
  return ShortestText(value);
}

std::string ArgumentText(const std::string& text) {
  return '"' + text + '"';
}

std::string ArgumentText(bool value) {
  return value ? "true" : "false";
}

}  // namespace quorb
