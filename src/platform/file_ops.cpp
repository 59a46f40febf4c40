#include "platform/file_ops.h"

namespace umbrakit {

FileResult replaceWhole(FileOps& files, const QString& path, const QString& tempPath,
                        const QByteArray& bytes) {
    // A temporary file left by an earlier run is never used; if it cannot go now, the cleanup
    // below tries once more, so that it is gone afterwards all the same.
    FileResult result = files.exists(tempPath) ? files.remove(tempPath) : FileResult::success();
    if (result)
        result = files.writeNew(tempPath, bytes);
    if (result)
        result = files.renameOver(tempPath, path);
    if (!result && files.exists(tempPath))
        files.remove(tempPath);
    return result;
}

} // namespace umbrakit
