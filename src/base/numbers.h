// Numbers as the program's files and labels write and read them: the numeric
// value of a text, number pictures such as "000.00", and the roundings.
#pragma once

#include <cmath>
#include <cstdint>
#include <string>
#include <string_view>

// The number that text starts with: blanks are passed over, then sign, digits,
// one decimal point, exponent (E or D). 0 if it starts with no number. A value
// too large for a double gives 0.
double Val(std::string_view text);

// Val() for whole numbers: rounded half to even and held within Integer's range.
std::int32_t ValInt32(std::string_view text);
std::int16_t ValInt16(std::string_view text);
std::uint8_t ValByte(std::string_view text);

// Nearest whole number, halves to the even one. Held within the range of the
// result; NaN gives 0.
std::int32_t RoundToEven(double value);

// The whole part, cut toward zero, held within the range of the result; NaN gives 0.
std::int32_t CutToInt(double value);

// The largest whole number not above value, held likewise; NaN gives 0.
std::int32_t FloorToInt(double value);

// Writes value in a number picture: "0" a digit that is always shown, "#" a
// digit shown when there is one, "." the decimal point; everything before the
// first and behind the last of these stands as it is (as the blank of
// " 000.00"). Rounds halves away from zero. A negative value has "-" before
// its first digit, unless it rounds to zero. NaN and infinities read "---".
std::string FormatPicture(double value, std::string_view picture);
