#include "platform/desktop_entry_files.h"

#include <QDir>
#include <QFileInfo>

#include "core/desktop_entry.h"
#include "platform/file_ops.h"

namespace umbrakit {

namespace {
QString entryPath(const QString& dataFolder) {
    return dataFolder + "/applications/umbrakit.desktop";
}

QString iconPath(const QString& dataFolder, int size) {
    return QString("%1/icons/hicolor/%2x%2/apps/umbrakit.png").arg(dataFolder).arg(size);
}

QStringList entryFiles(const QString& dataFolder) {
    QStringList paths{entryPath(dataFolder)};
    for (const int size : kDesktopIconSizes)
        paths << iconPath(dataFolder, size);
    return paths;
}
} // namespace

QString userDataFolder() {
    // A relative XDG_DATA_HOME is invalid and to be ignored.
    const QString dataHome = qEnvironmentVariable("XDG_DATA_HOME");
    return QDir::isAbsolutePath(dataHome) ? QDir::cleanPath(dataHome)
                                          : QDir::homePath() + "/.local/share";
}

DesktopEntryChange installDesktopEntry(FileOps& files, const QString& dataFolder,
                                       const DesktopEntryContent& content) {
    DesktopEntryChange change;
    const QStringList paths = entryFiles(dataFolder);
    for (qsizetype i = 0; i < paths.size(); ++i) {
        const QString& path = paths[i];
        const QByteArray& bytes =
            i == 0 ? content.entryText : content.iconPngs.at(kDesktopIconSizes[i - 1]);
        FileResult written = QDir().mkpath(QFileInfo(path).absolutePath())
                                 ? replaceWhole(files, path, path + ".tmp", bytes)
                                 : FileResult::failure("The folder could not be created.");
        if (!written) {
            change.failedPath = path;
            change.reason = written.reason;
            return change;
        }
        change.paths << path;
    }
    return change;
}

DesktopEntryChange removeDesktopEntry(FileOps& files, const QString& dataFolder) {
    DesktopEntryChange change;
    for (const QString& path : entryFiles(dataFolder)) {
        if (!files.exists(path))
            continue;
        if (const FileResult removed = files.remove(path); !removed) {
            change.failedPath = path;
            change.reason = removed.reason;
            return change;
        }
        change.paths << path;
    }
    return change;
}

} // namespace umbrakit
