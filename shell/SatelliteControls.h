#pragma once

namespace quorb {

// Event routines of what the option panel holds about the spacecraft, besides its switch and its size.

/// Fills the list of shapes and selects the one of USERFLAG.SatelliteShape; a number that stands for no shape
/// selects none.
/// @param count out: how many shapes there are.
void Combo2_InitList(int& count);
/// The shape that the list shows is taken; a text that names none changes nothing.
void Combo2_Click();
/// The local axes of the spacecraft are shown or not.
void Check6_Click();
/// Checked, the field of the thrusters opens. Cleared, its text is read: it closes when the numbers go up in
/// thrusters, and stays open behind a message when they do not.
void Check8_Click();

}  // namespace quorb
