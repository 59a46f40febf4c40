// File operations on the real disk, any one of which a test can make fail.
#pragma once

#include <QStringList>

#include "platform/disk_file_ops.h"

namespace umbrakit {

class FaultyFileOps : public FileOps {
  public:
    int failAt = 0;      // the operation, counted from 1, that fails; 0 for none
    int operations = 0;  // operations made so far (exists is no operation that can fail)
    QStringList journal; // "remove path", "writeNew path", ... in order

    bool exists(const QString& path) override { return disk_.exists(path); }
    FileResult read(const QString& path, QByteArray& bytes) override {
        return failsNow("read " + path) ? injected() : disk_.read(path, bytes);
    }
    FileResult remove(const QString& path) override {
        return failsNow("remove " + path) ? injected() : disk_.remove(path);
    }
    FileResult writeNew(const QString& path, const QByteArray& bytes) override {
        if (!failsNow("writeNew " + path))
            return disk_.writeNew(path, bytes);
        disk_.writeNew(path, bytes.left(bytes.size() / 2)); // a full disk leaves part behind
        return injected();
    }
    FileResult renameOver(const QString& from, const QString& to) override {
        return failsNow("renameOver " + from + " " + to) ? injected() : disk_.renameOver(from, to);
    }

  private:
    bool failsNow(const QString& what) {
        journal << what;
        return ++operations == failAt;
    }
    static FileResult injected() { return FileResult::failure("Injected failure."); }
    DiskFileOps disk_;
};

} // namespace umbrakit
