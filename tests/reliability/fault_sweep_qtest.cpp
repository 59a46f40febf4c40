// Each file operation of each command that writes fails in turn: the user is told, no file changes
// or is left behind, the windows are as before; and work after failures loses nothing saved.
#include <QtTest>
#include <functional>

#include "core/config_walk.h"
#include "core/text_lines.h"
#include "gui/main_window/patch_grid.h"
#include "platform/form_timer.h"
#include "platform/qt_text.h"
#include "support/dialog_driver.h"

using namespace umbrakit;

namespace {
// An old script longer than the new one, so that a leftover line would show.
const QMap<QString, QByteArray> kKept{
    {"config.ini", kWake + kMidway + kBerlin},
    {"lmList.dat", "old list"},
    {"go.bat", "@echo an earlier script\r\n@rem none of whose lines may survive a new run\r\n"}};

struct Command {
    const char* name;
    QString file;                   // the file it writes; a ".tmp" beside it until the rename
    QByteArray written;             // that file once a run completes
    int fewestPoints;               // a shorter sweep has missed operations
    QString failedState, doneState; // the state after a failure, and after the run that completes
    std::function<void(TestApp&)> prepare, run;
};

const QString kMidwayChanged = "Midway|E:\\BF|changed|DesertCombat|2|011";
const Command kCommands[] = {
    {"export", "lmList.dat", QByteArray("\x00\x00", 2), 3, "Preparing to Save... +timer boxes 2",
     "Saved! +timer boxes 1",
     [](TestApp& app) {
         app.window->patchGrid->patch(0)->setChecked(true);
         app.dialogs.fileAnswers << app.path("lmList.dat");
         app.dialogs.boxAnswers << MsgBoxAnswer::Yes; // overwrite the old list
     },
     [](TestApp& app) { click(app.window->exportButton); }},
    {"lighting run", "go.bat", "@cd D:\\Games\\BF1942\r\n@D:\r\n", 3, "Ready. +timer boxes 1",
     "Running batch lighting... You may exit. +timer boxes 0 started go.bat",
     [](TestApp& app) { app.setPaths(U"D:\\Games\\BF1942", U"MyLevel", U"BF1942"); },
     [](TestApp& app) { click(app.window->runLightingButton); }},
    {"save", "config.ini",
     kWake + kBerlin + record("Midway", "E:\\BF", "changed", "DesertCombat", "011", "2"), 4,
     "Ready. boxes 1 (Current),Wake,Midway,Berlin@2 " + kMidwayChanged,
     "Ready. boxes 0 (Current),Wake,Berlin,Midway@3 " + kMidwayChanged,
     [](TestApp& app) {
         PathsDialogWindow& w = openPaths(app);
         chooseRow(w.savedList, 2);
         type(w.levelBox, "changed");
     },
     [](TestApp& app) { click(app.window->pathsDialog()->window()->saveButton); }},
    {"delete", "config.ini", kWake + kBerlin, 4,
     "Ready. boxes 1 (Current),Wake,Midway,Berlin@0 Midway||||1.5|000",
     "Ready. boxes 0 (Current),Wake,Berlin@0 Midway||||1.5|000",
     [](TestApp& app) { chooseRow(openPaths(app).savedList, 2); },
     [](TestApp& app) { click(app.window->pathsDialog()->window()->deleteButton); }},
};

// What must hold after every run, failed or not; empty when all holds. The state is the status
// line, the timer, the boxes, what was started and the dialog's rows and texts.
QStringList problemsAfter(TestApp& app, const Command& c, bool failed) {
    QStringList found;
    for (const auto& [name, bytes] : kKept.asKeyValueRange())
        if (app.bytesOf(name) != (!failed && name == c.file ? c.written : bytes))
            found << name + " not as it must be";
    const QStringList files = QDir(app.dir.path()).entryList(QDir::Files | QDir::Hidden);
    if (files != QStringList(kKept.keys()))
        found << "files " + files.join(',');
    const AskedBox box = app.dialogs.boxes.value(app.dialogs.boxes.size() - 1);
    if (failed && !(box.style.icon == MsgBoxIcon::Critical && box.prompt.contains("Injected") &&
                    box.prompt.contains(QDir::toNativeSeparators(app.path(c.file)))))
        found << "box " + box.prompt;
    QString state = app.status() + (app.window->statusTimer->Enabled() ? " +timer" : "");
    state += QString(" boxes %1").arg(app.dialogs.boxes.size());
    for (const QString& started : app.launcher.started)
        state += " started " + QFileInfo(started).fileName();
    if (const PathsDialog* dialog = app.window->pathsDialog(); dialog && dialog->isLoaded())
        state += QString(" %1@%2 ")
                     .arg(rowsOf(dialog->window()->savedList).join(','))
                     .arg(dialog->window()->savedList->ListIndex()) +
                 texts(*dialog->window());
    if (state != (failed ? c.failedState : c.doneState))
        found << "state " + state;
    return found;
}
// The records of config.ini as the readers see them: each name and the level its row loads.
using Records = QList<QPair<QString, QString>>;
Records recordsIn(const QByteArray& bytes) {
    const std::vector<std::string> lines = splitLines(bytes.toStdString());
    Records records;
    for (const std::string& name : readSavedNames(lines)) {
        const auto level = findRecordValues(lines, name).values[int(RecordKey::LevelName)];
        records.append({QString::fromStdString(name), QString::fromStdString(level.value_or("?"))});
    }
    return records;
}
} // namespace

class FaultSweepTest : public QObject {
    Q_OBJECT
  private slots:
    void everyOperationFailsInTurn() {
        for (const Command& c : kCommands) {
            int failAt = 0;
            for (bool failed = true; failed;) {
                TestApp app;
                for (const auto& [name, bytes] : kKept.asKeyValueRange())
                    app.write(name, bytes);
                // left by a killed run: never read, gone afterwards
                app.write(c.file == "config.ini" ? "config.tmp" : c.file + ".tmp", "leftover");
                c.prepare(app);
                app.files.operations = 0;
                app.files.journal.clear();
                app.files.failAt = ++failAt;
                c.run(app);
                failed = app.files.operations >= failAt;
                const QString failure = app.files.journal.value(failAt - 1, "none");
                const QStringList problems = problemsAfter(app, c, failed);
                QVERIFY2(problems.isEmpty(),
                         qPrintable(c.name + (", " + failure + ": ") + problems.join("; ")));
            }
            qInfo("%s: %d injection points", c.name, failAt - 1); // the last run completes
            QVERIFY(failAt - 1 >= c.fewestPoints);
        }
    }

    // After a failed Save or Delete whatever was saved is never lost, and the list shows the
    // names of config.ini in its order. A step is "[fault:]command [name [level]]", the fault a
    // full disk, a locked or a read-only config.ini, or one that cannot be read.
    void theUserGoesOnAfterAFailure() {
        const char* const sequences[] = {
            "full:save New N1, save New N2, load New, delete Wake, ok, load New",
            "locked:delete Midway, delete Midway, save Midway M2, readonly:save Berlin B2, "
            "load Berlin, ok",
            "readonly:delete Wake, save Extra X, full:delete Extra, load Wake, delete Extra, ok",
            "unreadable:save Wake W2, load Wake, save Wake W3, locked:save Zulu Z, delete Berlin",
            "load Midway, full:save Midway M9, load Midway, ok, locked:save Midway M3, "
            "delete Midway, save Midway M4",
            "unreadable:open, save New N, full:save Wake W2, load Wake, ok",
            "locked:save A A1, readonly:delete Berlin, full:save B B1, unreadable:delete Wake, "
            "save C C1, load Midway, ok"};
        const QMap<QString, QString> failing{
            {"full", "writeNew"}, {"locked", "renameOver"}, {"unreadable", "read"}};
        for (const char* sequence : sequences) {
            TestApp app;
            app.setPaths(U"C:\\BF", U"Current", U"BF1942");
            app.write("config.ini", kWake + kMidway + kBerlin);
            const QString config = app.path("config.ini");
            Records saved = recordsIn(app.bytesOf("config.ini"));
            QString applied = "Current"; // the level on the main window
            for (const QString& step : QString(sequence).split(", ")) {
                const QString fault = step.contains(':') ? step.section(':', 0, 0) : QString();
                const QStringList words = step.section(':', -1).split(' ');
                const QString command = words[0], name = words.value(1);
                const qsizetype boxes = app.dialogs.boxes.size();
                if (command == "open")
                    app.files.failNext = failing.value(fault);
                PathsDialogWindow& w = openPaths(app);
                const int row = int(rowsOf(w.savedList).indexOf(name));
                if (command == "save") {
                    type(w.nameBox, name);
                    type(w.levelBox, words[2]);
                } else if (command == "delete" || command == "load") {
                    chooseRow(w.savedList, row);
                    QCOMPARE(w.levelBox->text(), saved[row - 1].second);
                }
                app.files.failNext = failing.value(fault);
                if (fault == "readonly")
                    QFile::setPermissions(config, QFile::ReadOwner);
                if (command == "save" || command == "delete")
                    click(command == "save" ? w.saveButton : w.deleteButton);
                if (command == "ok") {
                    applied = w.levelBox->text();
                    click(w.okButton);
                }
                QCOMPARE(toQString(app.window->configuration().levelName), applied);
                app.files.failNext.clear();
                QFile::setPermissions(config, QFile::ReadOwner | QFile::WriteOwner);
                if (fault.isEmpty() && (command == "save" || command == "delete"))
                    saved.removeIf([&name](const auto& record) { return record.first == name; });
                if (fault.isEmpty() && command == "save")
                    saved.append({name, words[2]});
                QStringList listed{"(Current)"}; // and the names, when config.ini could be read
                for (const auto& record :
                     fault == "unreadable" && command == "open" ? Records() : saved)
                    listed << record.first;
                QVERIFY2(app.dialogs.boxes.size() == boxes + !fault.isEmpty() &&
                             (fault.isEmpty() || app.dialogs.boxes.last().prompt.contains(
                                                     QDir::toNativeSeparators(config))) &&
                             recordsIn(app.bytesOf("config.ini")) == saved &&
                             rowsOf(openPaths(app).savedList) == listed &&
                             !QFile::exists(app.path("config.tmp")),
                         qPrintable(QString(sequence) + ": after " + step));
            }
        }
    }
};

QTEST_MAIN(FaultSweepTest)
#include "fault_sweep_qtest.moc"
