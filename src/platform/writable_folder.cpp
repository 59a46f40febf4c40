#include "platform/writable_folder.h"

#include <QFileInfo>
#include <QTemporaryFile>

namespace umbrakit {

bool folderIsMarkedReadOnly(const QString& folder) {
#ifdef Q_OS_WIN
    Q_UNUSED(folder);
    return false;
#else
    const QFileInfo info(folder);
    return info.isDir() && !(info.permissions() & QFileDevice::WriteOwner);
#endif
}

bool programFolderIsWritable(const QString& folder) {
    if (folderIsMarkedReadOnly(folder) || !QFileInfo(folder).isWritable())
        return false;
#ifdef Q_OS_WIN
    // Qt leaves Windows' access lists unread, so a folder below C:\Program Files looks
    // writable: only creating a file there tells.
    QTemporaryFile probe(folder + "/umbrakit-XXXXXX.tmp");
    return probe.open();
#else
    return true; // access() has answered for this user, read-only media included
#endif
}

} // namespace umbrakit
