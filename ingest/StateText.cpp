#include "StateText.h"

#include <charconv>
#include <cmath>

#include "Epoch.h"

namespace quorb {

namespace {

constexpr std::string_view kSpace = " \t\r\n";
constexpr std::size_t kQuotedBytes = 40;

std::optional<double> ReadTime(std::string_view field, EpochForm form) {
  if (form == EpochForm::epochOrSerialDay) {
    const std::optional<double> serial = ParseNumberField(field);
    if (serial) return serial;
  }
  return ParseEpoch(field);
}

std::string UnreadableTime(std::string_view field, EpochForm form) {
  std::string text = QuotedForMessage(field) + " is no epoch: write it as 2025-02-26T12:00:00";
  text += form == EpochForm::epoch ? " or 2025-057T12:00:00" : ", 2025-057T12:00:00 or a serial day";
  return text;
}

}  // namespace

bool LineWalk::Next() {
  if (rest_.empty()) return false;
  const std::size_t end = rest_.find_first_of("\r\n");
  line_ = rest_.substr(0, end);
  if (end == std::string_view::npos) {
    rest_ = {};
  } else {
    const bool carriageAndFeed = rest_.substr(end, 2) == "\r\n";
    rest_.remove_prefix(end + (carriageAndFeed ? 2 : 1));
  }
  ++number_;
  return true;
}

std::size_t LineOfOffset(std::string_view text, std::size_t offset) {
  std::size_t number = 1;
  LineWalk lines(text);
  while (lines.Next()) {
    if (lines.Line().data() > text.data() + offset) break;
    number = lines.Number();
  }
  return number;
}

std::string_view TrimSpace(std::string_view text) {
  const std::size_t first = text.find_first_not_of(kSpace);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kSpace) - first + 1);
}

std::vector<std::string_view> SplitWords(std::string_view line) {
  std::vector<std::string_view> words;
  std::size_t first = line.find_first_not_of(kSpace);
  while (first != std::string_view::npos) {
    const std::size_t end = line.find_first_of(kSpace, first);
    words.push_back(line.substr(first, end - first));
    first = line.find_first_not_of(kSpace, end);
  }
  return words;
}

std::optional<double> ParseNumberField(std::string_view field) {
  std::string_view digits = TrimSpace(field);
  if (digits.size() > 1 && digits[0] == '+' && digits[1] != '-') digits.remove_prefix(1);
  double value = 0;
  const char* const end = digits.data() + digits.size();
  const auto [stop, fault] = std::from_chars(digits.data(), end, value);
  if (fault != std::errc{} || stop != end || !std::isfinite(value)) return std::nullopt;
  return value;
}

std::string QuotedForMessage(std::string_view text) {
  std::string quoted = "\"";
  for (const char c : text.substr(0, kQuotedBytes)) {
    const bool control = static_cast<unsigned char>(c) < 32 || c == 127;
    quoted += control ? ' ' : c;
  }
  return quoted + (text.size() > kQuotedBytes ? "...\"" : "\"");
}

StateFault AppendState(const StateFields& fields, EpochForm form, StateTable& out) {
  if (out.time.size() == kMaxStates) {
    return {0, "more than " + std::to_string(kMaxStates) +
                   " states, which is all that a data file holds: thin them out or split the file"};
  }
  const std::optional<double> day = ReadTime(fields.epoch, form);
  if (!day) return {0, UnreadableTime(fields.epoch, form)};
  const std::string_view texts[3] = {fields.x, fields.y, fields.z};
  double position[3];
  for (std::size_t axis = 0; axis < 3; ++axis) {
    const std::optional<double> value = ParseNumberField(texts[axis]);
    if (!value) {
      return {axis + 1, QuotedForMessage(texts[axis]) + " for " + "xyz"[axis] +
                            " is no number: correct it or take the state out"};
    }
    position[axis] = *value;
  }
  out.time.push_back(*day);
  out.x.push_back(position[0]);
  out.y.push_back(position[1]);
  out.z.push_back(position[2]);
  return {};
}

}  // namespace quorb
