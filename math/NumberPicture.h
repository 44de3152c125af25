#pragma once

#include <string>
#include <string_view>

namespace quorb {

/// The text of a number through a picture. In a picture
/// - `0` and `#` are places for digits: `0` shows a zero where the number has no digit, `#` shows nothing;
/// - `.` is the point, and is always printed, as a point in every locale;
/// - `,` between places in front of the point groups the digits by three, with commas;
/// - `E+00` behind the places asks for the scientific form, with as many digits in front of the point as
///   there are places, and an exponent with its sign and at least as many digits as zeros;
/// - `\` makes the next character stand as it is;
/// - `;` separates the picture of numbers that are not negative from the one of negative numbers, which
///   holds its own minus sign;
/// - any other character stands as it is, also a digit and a blank between places.
///
/// Digits in front of the point for which there is no place come out at the first one. Without `;`, a minus
/// sign goes in front of the whole text, unless all digits shown are zero. The last place is rounded half
/// away from zero, on the shortest decimal text that reads back as the same number: 2.675 through "#.##" is
/// "2.68". NaN and the infinities give `GeneralNumber`.
///
/// Pictures of this system: " #0", "#0", "#", "000", "#.##", "0.0000000000", "#0.0000000000",
/// "#0.00000000000000000", "00.00", "01.00" to "05.00", "# ### ### ###", "##0.0E+00", " #,##0.000 \° ", " 0.
/// ", and those of `FormatSig`, such as "0.###  ; -0.### " and "##0.#E+00  ; -##0.#E+00 ".
///
/// 1 through "00.00" is "01.00", through "03.00" it is "13.00"; 0.5 through "#.##" is ".5", 2 is "2."; 0
/// through "#" is empty; 123 through "# ### ### ###" is "   123".
std::string FormatPicture(double value, std::string_view picture);

/// The plain general form: up to 15 significant digits and no trailing zeros, with a point as the mark. From
/// 1E-04 and below 1E+15 it has no exponent, elsewhere one of two or three digits ("1.5E-07"). "NaN", "Inf"
/// and "-Inf" for what is no number.
std::string GeneralNumber(double value);

}  // namespace quorb
