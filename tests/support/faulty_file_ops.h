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
    FileResult read(const QString& path, QByteArray& bytes) override;
    FileResult remove(const QString& path) override;
    FileResult writeNew(const QString& path, const QByteArray& bytes) override;
    FileResult renameOver(const QString& from, const QString& to) override;

  private:
    bool failsNow(const QString& what);
    DiskFileOps disk_;
};

} // namespace umbrakit
