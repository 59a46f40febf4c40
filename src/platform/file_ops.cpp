#include "platform/file_ops.h"

namespace umbrakit {

FileResult replaceWhole(FileOps& files, const QString& path, const QString& tempPath,
                        const QByteArray& bytes) {
    if (files.exists(tempPath)) {
        if (FileResult removed = files.remove(tempPath); !removed)
            return removed;
    }
    FileResult result = files.writeNew(tempPath, bytes);
    if (result)
        result = files.renameOver(tempPath, path);
    if (!result && files.exists(tempPath))
        files.remove(tempPath);
    return result;
}

} // namespace umbrakit
