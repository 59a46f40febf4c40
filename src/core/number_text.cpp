#include "core/number_text.h"

#include <array>
#include <charconv>
#include <cmath>
#include <system_error>

namespace umbrakit {

namespace {

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

bool isBlank(char c) {
    return c == ' ' || c == '\t';
}

// Skips a run of digits and tells how many there were.
std::size_t skipDigits(std::string_view text, std::size_t& pos) {
    std::size_t start = pos;
    while (pos < text.size() && isDigit(text[pos]))
        ++pos;
    return pos - start;
}

// Checks the whole text against the accepted form, since from_chars would also take "inf",
// "nan" and stop silently in the middle of the text.
bool isPlainNumber(std::string_view text) {
    std::size_t pos = 0;
    std::size_t digits = skipDigits(text, pos);
    if (pos < text.size() && text[pos] == '.') {
        ++pos;
        digits += skipDigits(text, pos);
    }
    if (digits == 0)
        return false;
    if (pos < text.size() && (text[pos] == 'e' || text[pos] == 'E')) {
        ++pos;
        if (pos < text.size() && (text[pos] == '+' || text[pos] == '-'))
            ++pos;
        if (skipDigits(text, pos) == 0)
            return false;
    }
    return pos == text.size();
}

} // namespace

std::string numberText(double value) {
    if (std::isnan(value))
        return "NaN";
    if (std::isinf(value))
        return value < 0 ? "-Inf" : "Inf";
    if (value == 0)
        return "0"; // also for -0, which to_chars would give as "-0"
    // Rounded to 15 digits, the very largest doubles give 1.79769313486232E+308, beyond any
    // double, a text that would not read back; they get the largest text that does.
    constexpr double kLargestText = 1.79769313486231e308;
    if (std::abs(value) > kLargestText)
        value = std::copysign(kLargestText, value);

    // to_chars never looks at the locale; general form with 15 digits is what %.15G gives.
    std::array<char, 32> buffer{};
    auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                std::chars_format::general, 15);
    std::string text(buffer.data(), result.ptr);
    if (std::size_t e = text.find('e'); e != std::string::npos)
        text[e] = 'E';
    return text;
}

std::optional<double> textToNumber(std::string_view text) {
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);

    bool negative = false;
    if (!text.empty() && (text.front() == '+' || text.front() == '-')) {
        negative = text.front() == '-';
        text.remove_prefix(1);
    }
    if (!isPlainNumber(text))
        return std::nullopt;

    double value = 0;
    auto result = std::from_chars(text.data(), text.data() + text.size(), value);
    // Out of range covers overflow and also values that would underflow to zero.
    if (result.ec != std::errc{} || result.ptr != text.data() + text.size() ||
        !std::isfinite(value))
        return std::nullopt;
    return negative ? -value : value;
}

} // namespace umbrakit
