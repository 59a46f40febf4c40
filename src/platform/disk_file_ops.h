// The file operations on the real disk.
#pragma once

#include "core/durable_files.h"
#include "platform/file_ops.h"

namespace umbrakit {

class DiskFileOps : public FileOps {
  public:
    // The system calls behind writeNew and renameOver; a test may watch them.
    explicit DiskFileOps(SystemFiles& system = systemFiles()) : system_(system) {}

    bool exists(const QString& path) override;
    FileResult read(const QString& path, QByteArray& bytes) override;
    FileResult remove(const QString& path) override;
    FileResult writeNew(const QString& path, const QByteArray& bytes) override;
    FileResult renameOver(const QString& from, const QString& to) override;

  private:
    SystemFiles& system_;
};

} // namespace umbrakit
