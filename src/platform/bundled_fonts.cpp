#include "platform/bundled_fonts.h"

#include <QDir>
#include <QFontDatabase>
#include <QResource>

// Resources of a static library are not registered by themselves.
static void registerFontResources() {
    Q_INIT_RESOURCE(umbrakit_fonts);
}

namespace umbrakit {

bool installBundledFonts() {
    registerFontResources();
    const QFileInfoList faces = QDir(":/umbrakit/fonts").entryInfoList({"*.ttf"}, QDir::Files);
    bool installed = !faces.isEmpty();
    for (const QFileInfo& face : faces) {
        // Stored uncompressed (cmake/fonts.cmake), a face is read where it lies in the program
        // rather than copied.
        const QResource stored(face.filePath());
        const QByteArray bytes =
            stored.compressionAlgorithm() == QResource::NoCompression
                ? QByteArray::fromRawData(reinterpret_cast<const char*>(stored.data()),
                                          qsizetype(stored.size()))
                : stored.uncompressedData();
        installed = QFontDatabase::addApplicationFontFromData(bytes) != -1 && installed;
    }
    return installed;
}

} // namespace umbrakit
