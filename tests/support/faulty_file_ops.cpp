#include "support/faulty_file_ops.h"

namespace umbrakit {

namespace {
const char* const kInjected = "Injected failure.";
}

bool FaultyFileOps::failsNow(const QString& what) {
    journal << what;
    return ++operations == failAt;
}

FileResult FaultyFileOps::read(const QString& path, QByteArray& bytes) {
    if (failsNow("read " + path))
        return FileResult::failure(kInjected);
    return disk_.read(path, bytes);
}

FileResult FaultyFileOps::remove(const QString& path) {
    if (failsNow("remove " + path))
        return FileResult::failure(kInjected);
    return disk_.remove(path);
}

FileResult FaultyFileOps::writeNew(const QString& path, const QByteArray& bytes) {
    if (failsNow("writeNew " + path)) {
        // A disk that fills up leaves part of the file behind.
        disk_.writeNew(path, bytes.left(bytes.size() / 2));
        return FileResult::failure(kInjected);
    }
    return disk_.writeNew(path, bytes);
}

FileResult FaultyFileOps::renameOver(const QString& from, const QString& to) {
    if (failsNow("renameOver " + from + " " + to))
        return FileResult::failure(kInjected);
    return disk_.renameOver(from, to);
}

} // namespace umbrakit
