#include "core/desktop_entry.h"

#include <string_view>

namespace umbrakit {

namespace {
// A desktop file's string value: a backslash and the line break characters are escaped, since
// a value ends at the line's end.
std::string stringValue(std::string_view text) {
    std::string value;
    for (const char c : text) {
        switch (c) {
        case '\\':
            value += "\\\\";
            break;
        case '\n':
            value += "\\n";
            break;
        case '\t':
            value += "\\t";
            break;
        case '\r':
            value += "\\r";
            break;
        default:
            value += c;
        }
    }
    return value;
}

void replaceAll(std::string& text, std::string_view placeholder, const std::string& value) {
    for (std::size_t at = text.find(placeholder); at != std::string::npos;
         at = text.find(placeholder, at + value.size()))
        text.replace(at, placeholder.size(), value);
}
} // namespace

std::string desktopExecValue(const std::string& program) {
    // The characters that the Exec key reserves; a program path holding any is quoted whole,
    // and inside the quotes '"', '`', '$' and '\' take a backslash. A carriage return is
    // quoted too, as some launchers split arguments there.
    constexpr std::string_view reserved = " \t\n\r\"'\\><~|&;$*?#()`";
    std::string argument;
    if (program.find_first_of(reserved) == std::string::npos) {
        argument = program;
    } else {
        argument = "\"";
        for (const char c : program) {
            if (c == '"' || c == '`' || c == '$' || c == '\\')
                argument += '\\';
            argument += c;
        }
        argument += '"';
    }
    std::string withoutFieldCodes; // a "%" would start a field code such as %f
    for (const char c : argument) {
        withoutFieldCodes += c;
        if (c == '%')
            withoutFieldCodes += '%';
    }
    // The string escapes are undone before the quotes are read, so they go on last.
    return stringValue(withoutFieldCodes);
}

std::string desktopEntryText(const std::string& templateText, const std::string& program) {
    std::string text = templateText;
    replaceAll(text, "@UMBRAKIT_EXEC@", desktopExecValue(program));
    replaceAll(text, "@UMBRAKIT_TRY_EXEC@", stringValue(program));
    return text;
}

} // namespace umbrakit
