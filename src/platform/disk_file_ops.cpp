#include "platform/disk_file_ops.h"

#include <QFile>
#include <QFileInfo>
#include <filesystem>

#include "platform/writable_folder.h"

namespace umbrakit {

namespace {
const char* const kReadOnly = "The file is read-only.";
// Nothing in a folder marked read-only is created, replaced or deleted, by anyone.
const char* const kReadOnlyFolder = "The folder is read-only.";

std::filesystem::path nativePath(const QString& path) {
    return std::filesystem::path(path.toStdU16String());
}

bool isInReadOnlyFolder(const QString& path) {
    return folderIsMarkedReadOnly(QFileInfo(path).absolutePath());
}

FileResult resultOf(const SystemResult& result) {
    return result ? FileResult::success()
                  : FileResult::failure(QString::fromStdString(result.reason));
}
} // namespace

bool DiskFileOps::exists(const QString& path) {
    return QFileInfo(path).isFile();
}

FileResult DiskFileOps::read(const QString& path, QByteArray& bytes) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return FileResult::failure(file.errorString());
    bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return FileResult::failure(file.errorString());
    return FileResult::success();
}

FileResult DiskFileOps::remove(const QString& path) {
    if (isMarkedReadOnly(nativePath(path)))
        return FileResult::failure(kReadOnly);
    if (isInReadOnlyFolder(path))
        return FileResult::failure(kReadOnlyFolder);
    QFile file(path);
    if (!file.remove())
        return FileResult::failure(file.errorString());
    return FileResult::success();
}

FileResult DiskFileOps::writeNew(const QString& path, const QByteArray& bytes) {
    if (isInReadOnlyFolder(path))
        return FileResult::failure(kReadOnlyFolder);
    return resultOf(writeDurably(
        nativePath(path), std::string_view(bytes.constData(), std::size_t(bytes.size())), system_));
}

FileResult DiskFileOps::renameOver(const QString& from, const QString& to) {
    if (isMarkedReadOnly(nativePath(to)))
        return FileResult::failure(kReadOnly);
    if (isInReadOnlyFolder(to))
        return FileResult::failure(kReadOnlyFolder);
    return resultOf(umbrakit::renameOver(nativePath(from), nativePath(to), system_));
}

} // namespace umbrakit
