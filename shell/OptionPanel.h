#pragma once

namespace quorb {

// Event routines of the option panel. Each runs when its control takes another value.

/// A check box of the array was clicked: reads the panel, and acts on Earth, Interactive and the sun ray.
void Check1_Click(int index);
/// The satellite goes on or off; its size is set to suit the scale of the plot.
void Check3_Click();
/// The solar arrays turn to the Sun or not.
void Check4_Click();
/// The cubic view goes on, off or grey.
void Check9_Click();
/// The Earth is sized for metres or kilometres.
void Check10_Click();
/// Line widths and axis lengths; 1 and 4 carry the same value and move the bar of the cubic range.
void Text4_Change(int index);
/// Directory of the images.
void Text6_Change();
/// Textures of Earth and Moon.
void Text7_Change();
void Text8_Change();
/// The main keyword: trimmed and in upper case, whatever was typed.
void Text9_Change();
/// Size of the satellite, from the panel and from the strip below the plot.
void HScroll3_Change();
void HScroll10_Change();
/// Range of the cubic view, in thousandths.
void HScroll8_Change();
/// Takes the panel's values and stores them; the panel stays open.
void Command1_Click();
/// Closes the panel and takes its values; the button of the tool bar that opened it is released.
void Command2_Click();
/// Shows the factory values on the panel. Nothing is stored.
void Command3_Click();

/// `AppDir` follows the directory of the images, or the program's own when that is empty.
void ImageDirRefresh();

}  // namespace quorb
