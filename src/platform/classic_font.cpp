#include "platform/classic_font.h"

#include <QFontDatabase>
#include <QStringList>

namespace umbrakit {

QFont classicFont(double pointSize, bool bold) {
    static const QStringList candidates{"MS Sans Serif", "Microsoft Sans Serif", "Liberation Sans",
                                        "Arial", "Nimbus Sans"};
    const QStringList installed = QFontDatabase::families();
    QFont font;
    for (const QString& family : candidates) {
        if (installed.contains(family)) {
            font.setFamily(family);
            break;
        }
    }
    font.setPointSizeF(pointSize);
    font.setBold(bold);
    return font;
}

} // namespace umbrakit
