// Number to text and text to number, for records, fields and captions alike.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/Types.h"

namespace ladrix {

// At most seven significant digits, no padding, no exponent for ordinary values (from 0.0000001 up
// to 1e15), with this decimal mark: 1.25, -0.5, 4. A number that is not finite throws Failure 6.
void appendSingle(std::string& out, Single value, char decimalMark);
std::string singleText(Single value, char decimalMark);

void appendLong(std::string& out, Long value);
std::string longText(Long value);

// Of a whole text, blanks around it apart. Both decimal marks are understood.
// Throws Failure 13 if it is not a number, 6 if it does not fit.
Single toSingle(std::string_view text);
Long toLong(std::string_view text);     // rounds to the nearest, halves to even
Short toShort(std::string_view text);   // likewise
bool toBoolean(std::string_view text);  // "True", "False" in any case, or a number

// What a person typed: nullopt where toSingle would throw.
std::optional<Single> typedNumber(std::string_view text);

// `radians` in degrees by the pattern "###.0": one decimal, the leading zero left out ("90.0",
// ".5").
std::string degreesText(Single radians, char decimalMark);

// `value` rounded to at most four decimals.
std::string coordinateText(Single value, char decimalMark);

}  // namespace ladrix
