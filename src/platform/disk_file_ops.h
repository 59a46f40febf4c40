// The file operations on the real disk.
#pragma once

#include "platform/file_ops.h"

namespace umbrakit {

class DiskFileOps : public FileOps {
public:
    bool exists(const QString& path) override;
    FileResult read(const QString& path, QByteArray& bytes) override;
    FileResult remove(const QString& path) override;
    FileResult writeNew(const QString& path, const QByteArray& bytes) override;
    FileResult renameOver(const QString& from, const QString& to) override;
};

} // namespace umbrakit
