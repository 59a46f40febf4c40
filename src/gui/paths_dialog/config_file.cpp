#include "gui/paths_dialog/config_file.h"

#include <QDir>

#include "platform/services.h"
#include "core/text_lines.h"

namespace umbrakit {

QString ConfigFile::path() const {
    return services_.appFile("config.ini");
}

std::optional<std::vector<std::string>> ConfigFile::readLines(const QString& failureText) const {
    if (!services_.files.exists(path()))
        return std::vector<std::string>();
    QByteArray bytes;
    if (const FileResult read = services_.files.read(path(), bytes); !read) {
        tellFailure(failureText, read.reason);
        return std::nullopt;
    }
    return splitLines(std::string_view(bytes.constData(), std::size_t(bytes.size())));
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
                             MsgBoxStyle::Critical, QString());
}

} // namespace umbrakit
