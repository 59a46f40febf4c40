// The program's number text: how a darkness value is shown, saved and written into go.bat.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace umbrakit {

// Plain decimal with at most 15 significant digits, no trailing zeros and always a point, so
// go.bat and config.ini read the same on every machine. Values too large or too small for 15
// plain digits get an exponent with sign and two or more digits, e.g. "1E+15", "1.5E-07".
std::string numberText(double value);

// Reads text in that form back: blanks and tabs around it are ignored, an optional sign,
// digits with an optional point and an optional exponent. Anything else, and any value that a
// double cannot hold, gives nullopt.
std::optional<double> textToNumber(std::string_view text);

} // namespace umbrakit
