#pragma once

namespace quorb {

/// The help: four boxes in a row. OK on the last one runs the demonstration with the factory options, which
/// stand on the option panel too; the options of the user are put aside once. Cancel brings them back, to
/// the panel as well, and loads what was shown before: the named file, or the sheet.
void mnuHContents_Click();

/// The About box.
void mnuHAbout_Click();

/// 1 while the demonstration stands in for the user's options.
extern int DemoShown;

}  // namespace quorb
