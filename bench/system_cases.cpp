// The system's own share of the handlers that write a file: a file of lmList.dat's size
// written beside the old one, flushed to the disk and renamed over it, with plain system
// calls and nothing of the program's.
#include <QFile>
#include <fcntl.h>
#include <memory>
#include <unistd.h>

#include "handler_cases.h"

namespace umbrakit::bench {

namespace {
constexpr int kListBytes = 512;

bool replaceDurably(const QByteArray& path, const QByteArray& tempPath, const QByteArray& bytes) {
    const int file = ::open(tempPath.constData(), O_WRONLY | O_CREAT | O_TRUNC, 0644);
    if (file < 0)
        return false;
    const bool written =
        ::write(file, bytes.constData(), std::size_t(bytes.size())) == bytes.size() &&
        ::fsync(file) == 0;
    return ::close(file) == 0 && written && ::rename(tempPath.constData(), path.constData()) == 0;
}
} // namespace

std::vector<HandlerCase> systemCases(const QString& folder) {
    const QByteArray path = QFile::encodeName(folder + "/system.dat");
    const QByteArray tempPath = path + ".tmp";
    const QByteArray bytes(kListBytes, '\0');
    auto replaced = std::make_shared<bool>(true);
    std::vector<HandlerCase> cases;
    cases.push_back(
        {"system: write 512 bytes, flush, rename over", nullptr,
         [path, tempPath, bytes, replaced](int) {
             *replaced = replaceDurably(path, tempPath, bytes) && *replaced;
         },
         [replaced] { return *replaced ? QString() : QString("the file was not replaced"); }});
    return cases;
}

} // namespace umbrakit::bench
