#pragma once

#include <array>
#include <concepts>
#include <cstdint>
#include <functional>
#include <initializer_list>
#include <string>
#include <vector>

namespace quorb {

/// Every OpenGL and GLU call of this process since the last ClearCalls(), in order, as it would stand in
/// source: "glVertex3f(1, 2, 0.5)", constants by name. A program that links this library in place of OpenGL
/// needs no context and draws nothing. Doubles of the host control write into the same list.
const std::vector<std::string>& RecordedCalls();

/// Forgets all calls.
void ClearCalls();

/// Red, green and blue of the pixel at (x, y) of a view, which counts from its bottom left corner.
using PixelColours = std::function<std::array<std::uint8_t, 3>(int x, int y)>;

/// The view that glGetIntegerv(GL_VIEWPORT) tells and glReadPixels reads from now on, in rows of a multiple
/// of 4 bytes. Until it is set, and after ForgetView(), both leave the caller's memory as it is.
void SetView(int width, int height, PixelColours colourAt);
void ForgetView();

/// The shortest text that reads back as the same number.
std::string ArgumentText(float value);
std::string ArgumentText(double value);
/// The text in quotes.
std::string ArgumentText(const std::string& text);
/// "true" or "false".
std::string ArgumentText(bool value);
std::string ArgumentText(std::integral auto value) {
  return std::to_string(value);
}

/// Appends a call of a function with its arguments, in their text form.
void RecordCallWith(const std::string& name, std::initializer_list<std::string> arguments);

/// Appends a call with its arguments.
template <class... Arguments>
void RecordCallOf(const std::string& name, const Arguments&... arguments) {
  RecordCallWith(name, {ArgumentText(arguments)...});
}

}  // namespace quorb
