#include "platform/system_launcher.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <utility>

#ifdef Q_OS_WIN
#include <windows.h>
#endif

namespace umbrakit {

namespace {
BatchProcessor systemBatchProcessor() {
#ifdef Q_OS_WIN
    // cmd.exe from the system folder, never a namesake beside the program.
    wchar_t folder[MAX_PATH] = {};
    const UINT length = GetSystemDirectoryW(folder, MAX_PATH);
    const QString system = QString::fromWCharArray(folder, int(length));
    return {system.isEmpty() ? QString("cmd.exe") : system + "\\cmd.exe", {"/s", "/c"}};
#else
    // Level builders here run the game under Wine; its start takes the script's Unix path and
    // works with or without a display (with one, the script gets a console window).
    return {"wine", {"start", "/unix"}};
#endif
}

#ifdef Q_OS_WIN
// cmd /s /c strips one pair of quotes around everything after /c; the inner pair keeps a path
// with blanks, "&" or "(" together, as in "C:\Program Files (x86)\Umbrakit\go.bat".
void useCommandLine(QProcess& process, const BatchProcessor& processor, const QString& script) {
    process.setNativeArguments(processor.leadingArguments.join(' ') + " \"\"" +
                               QDir::toNativeSeparators(script) + "\"\"");
    // A new console window of its own, shown normally and with the focus, as Shell's style 1.
    process.setCreateProcessArgumentsModifier([](QProcess::CreateProcessArguments* arguments) {
        arguments->flags |= CREATE_NEW_CONSOLE;
        arguments->startupInfo->dwFlags |= STARTF_USESHOWWINDOW;
        arguments->startupInfo->wShowWindow = SW_SHOWNORMAL;
    });
}
#else
void useCommandLine(QProcess& process, const BatchProcessor& processor, const QString& script) {
    process.setArguments(processor.leadingArguments + QStringList{script});
    // Wine's own chatter does not belong on the terminal that started the program.
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
}
#endif
} // namespace

SystemLauncher::SystemLauncher() : processor_(systemBatchProcessor()) {}

SystemLauncher::SystemLauncher(BatchProcessor processor) : processor_(std::move(processor)) {}

LaunchResult SystemLauncher::startScript(const QString& scriptPath) {
    // Looked up at every start, so that a Wine installed meanwhile is found without a restart.
    const QString program = QStandardPaths::findExecutable(processor_.program);
    if (program.isEmpty())
        return {LaunchResult::NoBatchProcessor, QString()};

    QProcess process;
    process.setProgram(program);
    useCommandLine(process, processor_, scriptPath);
    process.setWorkingDirectory(QFileInfo(scriptPath).absolutePath());
    // Detached: the script outlives the program, which neither waits for it nor keeps a handle.
    if (!process.startDetached())
        return {LaunchResult::Failed, process.errorString()};
    return {LaunchResult::Started, QString()};
}

} // namespace umbrakit
