// Text between Qt's strings and the core's, which knows no Qt.
#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace umbrakit {

inline std::u32string toText(const QString& text) {
    return text.toStdU32String();
}

inline QString toQString(std::u32string_view text) {
    return QString::fromUcs4(text.data(), qsizetype(text.size()));
}

} // namespace umbrakit
