#include "gui/paths_dialog/config_file.h"

#include <QDir>

#include "platform/services.h"

namespace umbrakit {

QString ConfigFile::path() const {
    return services_.appFile("config.ini");
}

std::optional<std::string> ConfigFile::read(const QString& failureText) const {
    if (!services_.files.exists(path()))
        return std::string();
    QByteArray bytes;
    if (const FileResult read = services_.files.read(path(), bytes); !read) {
        tellFailure(failureText, read.reason);
        return std::nullopt;
    }
    return bytes.toStdString();
}

bool ConfigFile::replace(const std::string& bytes, const QString& failureText) const {
    const FileResult written =
        replaceWhole(services_.files, path(), services_.appFile("config.tmp"),
                     QByteArray(bytes.data(), qsizetype(bytes.size())));
    if (!written)
        tellFailure(failureText, written.reason);
    return bool(written);
}

void ConfigFile::discardTemporary() const {
    if (services_.files.exists(services_.appFile("config.tmp")))
        services_.files.remove(services_.appFile("config.tmp"));
}

void ConfigFile::tellFailure(const QString& failureText, const QString& reason) const {
    services_.dialogs.msgBox(failureText + "\n\n" + QDir::toNativeSeparators(path()) + "\n\n" +
                                 reason,
                             {MsgBoxButtons::Ok, MsgBoxIcon::Critical}, QString());
}

} // namespace umbrakit
