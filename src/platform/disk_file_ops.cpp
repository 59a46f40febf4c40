#include "platform/disk_file_ops.h"
#include "platform/writable_folder.h"

#include <QFile>
#include <QFileInfo>
#include <QThread>

#ifdef Q_OS_WIN
#include <io.h>
#include <windows.h>
#else
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>
#endif

namespace umbrakit {

namespace {
const char* const kReadOnly = "The file is read-only.";

// The file's own read-only mark, not whether this user could write it anyway: an
// administrator may write everything, yet a file marked read-only is one the user protects.
bool isReadOnlyFile(const QString& path) {
    const QFileInfo info(path);
    return info.isFile() && !(info.permissions() & QFileDevice::WriteOwner);
}

// Nothing in a folder marked read-only is created, replaced or deleted, by anyone.
const char* const kReadOnlyFolder = "The folder is read-only.";
bool isInReadOnlyFolder(const QString& path) {
    return folderIsMarkedReadOnly(QFileInfo(path).absolutePath());
}

bool flushToDisk(QFile& file) {
    if (!file.flush())
        return false;
#ifdef Q_OS_WIN
    return FlushFileBuffers(reinterpret_cast<HANDLE>(_get_osfhandle(file.handle()))) != 0;
#else
    return ::fsync(file.handle()) == 0;
#endif
}

#ifdef Q_OS_WIN
QString systemMessage(DWORD code) {
    wchar_t* text = nullptr;
    FormatMessageW(FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM |
                       FORMAT_MESSAGE_IGNORE_INSERTS,
                   nullptr, code, 0, reinterpret_cast<wchar_t*>(&text), 0, nullptr);
    const QString message = text ? QString::fromWCharArray(text).trimmed() : QString::number(code);
    LocalFree(text);
    return message;
}
#endif
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
    if (isReadOnlyFile(path))
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
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return FileResult::failure(file.errorString());
    if (file.write(bytes) != bytes.size() || !flushToDisk(file)) {
        const QString reason = file.errorString();
        file.close();
        return FileResult::failure(reason);
    }
    file.close();
    if (file.error() != QFileDevice::NoError)
        return FileResult::failure(file.errorString());
    return FileResult::success();
}

FileResult DiskFileOps::renameOver(const QString& from, const QString& to) {
    if (isReadOnlyFile(to))
        return FileResult::failure(kReadOnly);
    if (isInReadOnlyFolder(to))
        return FileResult::failure(kReadOnlyFolder);
#ifdef Q_OS_WIN
    // A virus scanner or an indexer may hold the file for a moment: try again a few times.
    const std::wstring source = from.toStdWString();
    const std::wstring target = to.toStdWString();
    DWORD error = 0;
    for (int attempt = 0; attempt < 20; ++attempt) {
        if (MoveFileExW(source.c_str(), target.c_str(),
                        MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH))
            return FileResult::success();
        error = GetLastError();
        if (error != ERROR_ACCESS_DENIED && error != ERROR_SHARING_VIOLATION &&
            error != ERROR_LOCK_VIOLATION)
            break;
        QThread::msleep(100);
    }
    return FileResult::failure(systemMessage(error));
#else
    if (std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) != 0)
        return FileResult::failure(QString::fromLocal8Bit(std::strerror(errno)));
    // The rename itself reaches the disk only with its folder; without this a power cut could
    // bring back the old file after the user was told the new one is saved.
    const int folder = ::open(QFile::encodeName(QFileInfo(to).absolutePath()).constData(),
                              O_RDONLY | O_DIRECTORY);
    if (folder >= 0) {
        ::fsync(folder);
        ::close(folder);
    }
    return FileResult::success();
#endif
}

} // namespace umbrakit
