#include "platform/ansi_text.h"

#include "core/codepage_1252.h"

#ifdef Q_OS_WIN
#include <windows.h>
#endif

namespace umbrakit {

#ifdef Q_OS_WIN
std::optional<std::string> toAnsi(const QString& text) {
    if (text.isEmpty())
        return std::string();
    const std::wstring wide = text.toStdWString();
    BOOL usedDefault = FALSE;
    const int size = WideCharToMultiByte(CP_ACP, WC_NO_BEST_FIT_CHARS, wide.data(),
                                         int(wide.size()), nullptr, 0, nullptr, &usedDefault);
    std::string bytes(size, '\0');
    WideCharToMultiByte(CP_ACP, WC_NO_BEST_FIT_CHARS, wide.data(), int(wide.size()), bytes.data(),
                        size, nullptr, &usedDefault);
    if (usedDefault || size == 0)
        return std::nullopt;
    return bytes;
}

QString fromAnsi(std::string_view bytes) {
    if (bytes.empty())
        return QString();
    const int size = MultiByteToWideChar(CP_ACP, 0, bytes.data(), int(bytes.size()), nullptr, 0);
    std::wstring wide(size, L'\0');
    MultiByteToWideChar(CP_ACP, 0, bytes.data(), int(bytes.size()), wide.data(), size);
    return QString::fromStdWString(wide);
}
#else
std::optional<std::string> toAnsi(const QString& text) {
    return utf8ToWindows1252(text.toStdString());
}

QString fromAnsi(std::string_view bytes) {
    return QString::fromStdString(windows1252ToUtf8(bytes));
}
#endif

QString firstUnwritableCharacter(const QString& text) {
    for (int i = 0; i < text.size();) {
        const int width = text.at(i).isHighSurrogate() && i + 1 < text.size() ? 2 : 1;
        const QString character = text.mid(i, width);
        if (!toAnsi(character))
            return character;
        i += width;
    }
    return QString();
}

} // namespace umbrakit
