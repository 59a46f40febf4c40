// The lighting run: test the configuration, write go.bat beside the program, start it and
// leave it to itself.
#include <QDir>
#include <optional>
#include <string>
#include <utility>

#include "gui/main_window/main_window.h"
#include "core/batch_script.h"
#include "core/script_hazards.h"
#include "platform/ansi_text.h"
#include "platform/form_timer.h"
#include "platform/status_bar.h"

namespace umbrakit {

namespace {
bool isComplete(const Form1& form) {
    // Only emptiness and the darkness count here; the text itself is looked at later.
    return isCompleteForRun({form.gamePath.toStdString(), form.levelName.toStdString(),
                             form.modName.toStdString(), form.shadowDarkness});
}

// The configuration as go.bat holds it, the strings in the single-byte code page. A character
// that the code page lacks refuses the run: a "?" in its place would send the engine to a
// folder that is not there.
std::optional<ScriptValues> scriptValuesOf(const Form1& form, Dialogs& dialogs) {
    ScriptValues values;
    values.shadowDarkness = form.shadowDarkness;
    values.terrain = form.terrainBoolean != 0;
    values.merge = form.mergeBoolean != 0;
    values.object = form.objectBoolean != 0;
    const struct {
        const QString& text;
        const char* label;
        std::string& bytes;
    } fields[] = {{form.gamePath, "Game Path", values.gamePath},
                  {form.levelName, "Level Name", values.levelName},
                  {form.modName, "Mod Name", values.modName}};
    for (const auto& field : fields) {
        std::optional<std::string> bytes = toAnsi(field.text);
        if (!bytes) {
            dialogs.msgBox(QString("The %1 \"%2\" holds the character \"%3\", which go.bat "
                                   "cannot hold.\n\nChange the %1 and run again. Lighting was "
                                   "not started and go.bat was not changed.")
                               .arg(field.label, field.text, firstUnwritableCharacter(field.text)),
                           MsgBoxStyle::Exclamation, QString());
            return std::nullopt;
        }
        field.bytes = std::move(*bytes);
    }
    return values;
}

// go.bat is written as it stands, but a character that the batch processor reads otherwise
// would send the engine elsewhere and cost hours of lighting: the user decides.
bool hazardsAccepted(const ScriptValues& values, Dialogs& dialogs) {
    const std::vector<ScriptHazard> hazards = scriptHazards(values);
    if (hazards.empty())
        return true;
    const char* const labels[] = {"Game Path", "Level Name", "Mod Name"};
    QString prompt = "go.bat will not reach the engine as written:\n";
    for (const ScriptHazard& hazard : hazards) {
        const QString character = fromAnsi(std::string(1, char(hazard.character)));
        const QString why = hazard.character >= 0x80
                                ? "the batch processor reads it in the console's code page and "
                                  "passes the engine another letter"
                                : "the batch processor takes it as its own";
        prompt += QString("\n- The %1 holds \"%2\": %3.").arg(labels[hazard.field], character, why);
    }
    prompt += "\n\nRun the lighting anyway?";
    return dialogs.msgBox(prompt, MsgBoxStyle::YesNo | MsgBoxStyle::Exclamation, QString()) ==
           MsgBoxResult::Yes;
}
} // namespace

void Form1::Go_Button_Click() {
    if (!isComplete(*this)) {
        StatusBar1->setSimpleText("Error: Incomplete Config. Set Paths or Load Config.");
        Timer1->setEnabled(true);
        return;
    }

    // After a refusal or a failure the line keeps its text and goes back to rest on Timer1, as
    // after a failed export; it never says that lighting runs.
    const std::optional<ScriptValues> values = scriptValuesOf(*this, services.dialogs);
    if (!values || !hazardsAccepted(*values, services.dialogs)) {
        Timer1->setEnabled(true);
        return;
    }
    const std::string script = composeScript(*values);

    // The old script stays whole until the new one is complete beside it.
    const QString path = services.appFile("go.bat");
    const FileResult written = replaceWhole(services.files, path, services.appFile("go.bat.tmp"),
                                            QByteArray(script.data(), qsizetype(script.size())));
    if (!written) {
        reportFileFailure("go.bat was not written. Lighting was not started.", path,
                          written.reason);
        Timer1->setEnabled(true);
        return;
    }

    const LaunchResult started = services.launcher.startScript(path);
    switch (started.outcome) {
    case LaunchResult::Started:
        StatusBar1->setSimpleText("Running batch lighting... You may exit.");
        break;
    case LaunchResult::NoBatchProcessor:
        services.dialogs.msgBox(
            "go.bat was written to\n\n" + QDir::toNativeSeparators(path) +
                "\n\nbut this system has no program that runs batch scripts, so lighting was "
                "not started. Install Wine and run again, or run go.bat on Windows.",
            MsgBoxStyle::Exclamation, QString());
        break;
    case LaunchResult::Failed:
        reportFileFailure("go.bat was written but could not be started. Lighting was not started.",
                          path, started.reason);
        break;
    }
    Timer1->setEnabled(true);
}

void Form1::menuRunGo_Click() {
    Go_Button_Click();
}

} // namespace umbrakit
