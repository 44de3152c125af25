#pragma once

namespace quorb {

/// Fills `Combo1` with the entries of the history of specifications that are not empty, latest first.
/// @param count out: how many there are.
void Combo1_InitList(int& count);

/// `Combo1` has got the focus: it reloads its list and takes the width of the progress bar.
void Combo1_GotFocusRoutine();

/// The user is done with the text of `Combo1` (Enter, a double click, or leaving it with changed text): the
/// loader and the watcher take it as the specification.
void Combo1_Entered();

/// A key goes down in `Combo1`: Enter ends the entry; Page Up, Page Down and the arrows go to the plot.
void Combo1_KeyDown(int KeyCode);

/// "Run Demo": the loader goes on without a specification.
void Command6_Click();

/// The command Update: the plot is loaded from the spreadsheet again, which takes the place of a named file,
/// and the option Interactive goes off.
void mnuUpdateExcel_Click();
/// Interactive goes on or off, through its check box.
void mnuOinteractive_Click();

}  // namespace quorb
