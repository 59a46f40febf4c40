// Every file operation of every command that writes a file fails in turn, until a run
// completes. After each failure the user has been told, the kept files are byte for byte what
// they were, no temporary file is left and the windows are as before.
#include <QDir>
#include <QFileInfo>
#include <QtTest>
#include <functional>

#include "gui/main_window/patch_grid.h"
#include "platform/form_timer.h"
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
    QString file;        // the file it writes; a ".tmp" beside it until the rename
    QByteArray written;  // that file once a run completes
    int fewestPoints;    // a shorter sweep has missed operations
    QString failedState; // stateOf() after a failure, and after the run that completes
    QString doneState;
    std::function<void(TestApp&)> prepare, run;
};

// The status line, the timer, the boxes, what was started and the dialog's rows and texts.
QString stateOf(TestApp& app) {
    QString state = app.status() + (app.window->statusTimer->Enabled() ? " +timer" : "");
    state += QString(" boxes %1").arg(app.dialogs.boxes.size());
    for (const QString& started : app.launcher.started)
        state += " started " + QFileInfo(started).fileName();
    if (const PathsDialog* dialog = app.window->pathsDialog(); dialog && dialog->isLoaded())
        state += QString(" %1@%2 ")
                     .arg(rowsOf(dialog->window()->savedList).join(','))
                     .arg(dialog->window()->savedList->ListIndex()) +
                 texts(*dialog->window());
    return state;
}

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

// What must hold after every run, failed or not; empty when all holds.
QStringList problemsAfter(TestApp& app, const Command& c, bool failed) {
    QStringList found;
    for (auto kept = kKept.begin(); kept != kKept.end(); ++kept)
        if (app.bytesOf(kept.key()) != (!failed && kept.key() == c.file ? c.written : kept.value()))
            found << kept.key() + " not as it must be";
    const QStringList files = QDir(app.dir.path()).entryList(QDir::Files | QDir::Hidden);
    if (files != QStringList(kKept.keys()))
        found << "files " + files.join(',');
    const AskedBox box = app.dialogs.boxes.value(app.dialogs.boxes.size() - 1);
    if (failed && !(box.style.icon == MsgBoxIcon::Critical && box.prompt.contains("Injected") &&
                    box.prompt.contains(QDir::toNativeSeparators(app.path(c.file)))))
        found << "box " + box.prompt;
    if (const QString state = stateOf(app); state != (failed ? c.failedState : c.doneState))
        found << "state " + state;
    return found;
}
} // namespace

class FaultSweepTest : public QObject {
    Q_OBJECT
  private slots:
    void everyOperationFailsInTurn() {
        for (const Command& c : kCommands) {
            int points = 0, failures = 0;
            for (int failAt = 1;; ++failAt) {
                TestApp app;
                for (auto kept = kKept.begin(); kept != kKept.end(); ++kept)
                    app.write(kept.key(), kept.value());
                // left by a killed run: never read, gone afterwards
                app.write(c.file == "config.ini" ? "config.tmp" : c.file + ".tmp", "leftover");
                c.prepare(app);
                app.files.operations = 0;
                app.files.journal.clear();
                app.files.failAt = failAt;
                c.run(app);
                const bool failed = app.files.operations >= failAt;
                if (const QStringList problems = problemsAfter(app, c, failed); !problems.isEmpty()) {
                    ++failures;
                    qWarning("%s, %s: %s", c.name,
                             qPrintable(failed ? app.files.journal.value(failAt - 1) : "no failure"),
                             qPrintable(problems.join("; ")));
                }
                if (!failed)
                    break;
                ++points;
            }
            qInfo("%s: %d injection points, %d failures", c.name, points, failures);
            QVERIFY(points >= c.fewestPoints);
            QCOMPARE(failures, 0);
        }
    }
};

QTEST_MAIN(FaultSweepTest)
#include "fault_sweep_qtest.moc"
