#include "platform/system_launcher.h"

#include <QDir>
#include <QProcess>
#include <QStandardPaths>

namespace umbrakit {

LaunchResult SystemLauncher::startScript(const QString& scriptPath) {
#ifdef Q_OS_WIN
    // A program without a console of its own gets the script in a new console window.
    const QString program = "cmd.exe";
    const QStringList arguments{"/c", QDir::toNativeSeparators(scriptPath)};
#else
    const QString program = QStandardPaths::findExecutable("wine");
    if (program.isEmpty())
        return {LaunchResult::NoBatchProcessor, QString()};
    const QStringList arguments{"start", "/unix", scriptPath};
#endif
    QProcess process;
    process.setProgram(program);
    process.setArguments(arguments);
    process.setStandardInputFile(QProcess::nullDevice());
    if (!process.startDetached())
        return {LaunchResult::Failed, process.errorString()};
    return {LaunchResult::Started, QString()};
}

} // namespace umbrakit
