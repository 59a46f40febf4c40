// Every file operation of the program goes through this interface, so that a test can make
// any single call fail and check that nothing the user keeps is lost.
#pragma once

#include <QByteArray>
#include <QString>

namespace umbrakit {

struct FileResult {
    bool ok = true;
    QString reason; // the system's reason when not ok

    static FileResult success() { return {}; }
    static FileResult failure(const QString& why) { return {false, why}; }
    explicit operator bool() const { return ok; }
};

class FileOps {
public:
    virtual ~FileOps() = default;
    virtual bool exists(const QString& path) = 0;
    virtual FileResult read(const QString& path, QByteArray& bytes) = 0;
    // Refuses a read-only file, as a delete without force does.
    virtual FileResult remove(const QString& path) = 0;
    // Creates or truncates the file, writes all bytes and flushes them to the disk.
    virtual FileResult writeNew(const QString& path, const QByteArray& bytes) = 0;
    // Puts `from` in the place of `to` in one step: afterwards `to` is either the whole old
    // file or the whole new one. Refuses a read-only `to`.
    virtual FileResult renameOver(const QString& from, const QString& to) = 0;
};

// Replaces `path` by `bytes` without ever leaving it half-written: the new file is written
// whole as `tempPath` beside it and then renamed over it. `tempPath` is gone afterwards,
// whether the call succeeded or failed.
FileResult replaceWhole(FileOps& files, const QString& path, const QString& tempPath,
                        const QByteArray& bytes);

} // namespace umbrakit
