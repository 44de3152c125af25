#pragma once

namespace quorb {

/// The windows of this program that may stand in front. The file chooser is none of them: while it is open
/// nothing else can be, and who opened it runs the activation of the main window behind it.
enum class ProgramWindow { none, main, movie };

/// A window of this program has come to the front. When another one of them was there before, its activation
/// routine runs; when it comes back from behind a message box or another program, nothing does. To be called
/// at every such event; calling it twice is calling it once.
void WindowComesForward(ProgramWindow window);

/// No window has been in front yet: the next one is activated.
void ForgetActiveWindow();

}  // namespace quorb
