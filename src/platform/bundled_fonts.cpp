#include "platform/bundled_fonts.h"

#include <QDir>
#include <QFontDatabase>

// Resources of a static library are not registered by themselves.
static void registerFontResources() {
    Q_INIT_RESOURCE(umbrakit_fonts);
}

namespace umbrakit {

bool installBundledFonts() {
    registerFontResources();
    const QFileInfoList faces = QDir(":/umbrakit/fonts").entryInfoList({"*.ttf"}, QDir::Files);
    bool installed = !faces.isEmpty();
    for (const QFileInfo& face : faces)
        installed = QFontDatabase::addApplicationFont(face.filePath()) != -1 && installed;
    return installed;
}

} // namespace umbrakit
