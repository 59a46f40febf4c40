// The real file operations with the time spent in them counted: how much of a handler's time
// is the wait for the disk (the flush of a file above all) rather than the program's own work.
#pragma once

#include <chrono>
#include <type_traits>

#include "platform/disk_file_ops.h"

namespace umbrakit::bench {

class TimedFileOps : public FileOps {
  public:
    double spentUs() const { return std::chrono::duration<double, std::micro>(spent_).count(); }

    bool exists(const QString& path) override {
        return timed([&] { return disk_.exists(path); });
    }
    FileResult read(const QString& path, QByteArray& bytes) override {
        return timed([&] { return disk_.read(path, bytes); });
    }
    FileResult remove(const QString& path) override {
        return timed([&] { return disk_.remove(path); });
    }
    FileResult writeNew(const QString& path, const QByteArray& bytes) override {
        return timed([&] { return disk_.writeNew(path, bytes); });
    }
    FileResult renameOver(const QString& from, const QString& to) override {
        return timed([&] { return disk_.renameOver(from, to); });
    }

  private:
    template <typename Operation> std::invoke_result_t<Operation> timed(Operation operation) {
        const auto start = std::chrono::steady_clock::now();
        auto result = operation();
        spent_ += std::chrono::steady_clock::now() - start;
        return result;
    }

    DiskFileOps disk_;
    std::chrono::steady_clock::duration spent_{};
};

} // namespace umbrakit::bench
