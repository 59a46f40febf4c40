// The lighting run: test the configuration, write go.bat beside the program, start it and
// leave it to itself.
#include <QDir>

#include "core/batch_script.h"
#include "core/script_hazards.h"
#include "gui/main_window/main_window.h"
#include "gui/text_field_captions.h"
#include "platform/form_timer.h"
#include "platform/qt_text.h"
#include "platform/status_bar.h"

namespace umbrakit {

namespace {
void tellUnwritable(Dialogs& dialogs, const Configuration& c, const UnwritableText& problem) {
    const std::u32string& text = problem.field == TextField::GamePath    ? c.gamePath
                                 : problem.field == TextField::LevelName ? c.levelName
                                                                         : c.modName;
    dialogs.msgBox(QString("The %1 \"%2\" holds the character \"%3\", which go.bat cannot hold."
                           "\n\nChange the %1 and run again. Lighting was not started and go.bat "
                           "was not changed.")
                       .arg(captionOf(problem.field), toQString(text),
                            toQString(characterForMessage(problem.character))),
                   {MsgBoxButtons::Ok, MsgBoxIcon::Exclamation}, QString());
}

// go.bat is written as it stands, but a character that the batch processor reads otherwise
// would send the engine elsewhere and cost hours of lighting: the user decides.
bool runAnywayDespite(Dialogs& dialogs, const std::vector<ScriptHazard>& hazards) {
    QString prompt = "go.bat will not reach the engine as written:\n";
    for (const ScriptHazard& hazard : hazards) {
        const QString why = hazard.character >= 0x80
                                ? "the batch processor reads it in the console's code page and "
                                  "passes the engine another letter"
                                : "the batch processor takes it as its own";
        prompt += QString("\n- The %1 holds \"%2\": %3.")
                      .arg(captionOf(hazard.field),
                           toQString(std::u32string(1, hazard.character)), why);
    }
    prompt += "\n\nRun the lighting anyway?";
    return dialogs.msgBox(prompt, {MsgBoxButtons::YesNo, MsgBoxIcon::Exclamation}, QString()) ==
           MsgBoxAnswer::Yes;
}
} // namespace

void MainWindow::runLighting() {
    if (!isCompleteForRun(configuration_)) {
        report("Error: Incomplete Config. Set Paths or Load Config.");
        return;
    }
    // After a refusal or a failure the line keeps its text and goes back to rest on the timer,
    // as after a failed export; it never says that lighting runs.
    const auto script = scriptBytes(configuration_, services.codePage);
    if (const auto* problem = std::get_if<UnwritableText>(&script)) {
        tellUnwritable(services.dialogs, configuration_, *problem);
        statusTimer->setEnabled(true);
        return;
    }
    const std::vector<ScriptHazard> hazards = scriptHazards(configuration_);
    if (!hazards.empty() && !runAnywayDespite(services.dialogs, hazards)) {
        statusTimer->setEnabled(true);
        return;
    }

    // The old script stays whole until the new one is complete beside it.
    const std::string& bytes = std::get<std::string>(script);
    const QString path = services.appFile("go.bat");
    const FileResult written = replaceWhole(services.files, path, services.appFile("go.bat.tmp"),
                                            QByteArray(bytes.data(), qsizetype(bytes.size())));
    if (!written) {
        tellFileFailure("go.bat was not written. Lighting was not started.", path,
                        written.reason);
        statusTimer->setEnabled(true);
        return;
    }

    const LaunchResult started = services.launcher.startScript(path);
    switch (started.outcome) {
    case LaunchResult::Started:
        report("Running batch lighting... You may exit.");
        return;
    case LaunchResult::NoBatchProcessor:
        services.dialogs.msgBox(
            "go.bat was written to\n\n" + QDir::toNativeSeparators(path) +
                "\n\nbut this system has no program that runs batch scripts, so lighting was "
                "not started. Install Wine and run again, or run go.bat on Windows.",
            {MsgBoxButtons::Ok, MsgBoxIcon::Exclamation}, QString());
        break;
    case LaunchResult::Failed:
        tellFileFailure("go.bat was written but could not be started. Lighting was not started.",
                        path, started.reason);
        break;
    }
    statusTimer->setEnabled(true);
}

} // namespace umbrakit
