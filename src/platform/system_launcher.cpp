#include "platform/system_launcher.h"

#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <utility>

#include "core/batch_start.h"

namespace umbrakit {

namespace {
// Level builders here run the game under Wine; its start takes the script's Unix path and
// works with or without a display (with one, the script gets a console window).
BatchProcessor wine() {
    return {"wine", {"start", "/unix"}};
}
} // namespace

SystemLauncher::SystemLauncher() = default;

SystemLauncher::SystemLauncher(BatchProcessor processor) : processor_(std::move(processor)) {}

LaunchResult SystemLauncher::startScript(const QString& scriptPath) {
#ifdef Q_OS_WIN
    if (!processor_) {
        const SystemResult started = startWithCmd(std::filesystem::path(scriptPath.toStdWString()));
        return started ? LaunchResult{}
                       : LaunchResult{LaunchResult::Failed, QString::fromStdString(started.reason)};
    }
#endif
    const BatchProcessor processor = processor_.value_or(wine());
    // Looked up at every start, so that a Wine installed meanwhile is found without a restart.
    const QString program = QStandardPaths::findExecutable(processor.program);
    if (program.isEmpty())
        return {LaunchResult::NoBatchProcessor, QString()};

    QProcess process;
    process.setProgram(program);
    process.setArguments(processor.leadingArguments + QStringList{scriptPath});
    // Wine's own chatter does not belong on the terminal that started the program.
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    process.setWorkingDirectory(QFileInfo(scriptPath).absolutePath());
    // Detached: the script outlives the program, which neither waits for it nor keeps a handle.
    if (!process.startDetached())
        return {LaunchResult::Failed, process.errorString()};
    return {LaunchResult::Started, QString()};
}

} // namespace umbrakit
