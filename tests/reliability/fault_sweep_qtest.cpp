// Every file operation of every command that writes a file fails in turn, until a run
// completes. After each failure the user has been told, the kept files are byte for byte what
// they were, no temporary file is left and the window is as before.
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
    QString file, temp;  // the file it writes, and the new one beside it until the rename
    QByteArray written;  // that file once a run completes
    int questions;       // boxes of a run without failure
    int fewestPoints;    // a shorter sweep has missed operations
    QString failedState; // stateOf() after a failure, and after the run that completes
    QString doneState;
    std::function<void(TestApp&)> prepare, run;
};

// The status line, Timer1, what was started and the dialog's rows, selection and texts.
QString stateOf(TestApp& app) {
    QString state = app.status() + (app.window->statusTimer->Enabled() ? " +timer" : "");
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
    {"export", "lmList.dat", "lmList.dat.tmp", QByteArray("\x00\x00", 2), 1, 3,
     "Preparing to Save... +timer", "Saved! +timer",
     [](TestApp& app) {
         app.window->patchGrid->patch(0)->setChecked(true);
         app.dialogs.fileAnswers.enqueue(app.path("lmList.dat"));
         app.dialogs.boxAnswers.enqueue(MsgBoxAnswer::Yes); // overwrite the old list
     },
     [](TestApp& app) { click(app.window->exportButton); }},
    {"lighting run", "go.bat", "go.bat.tmp", "@cd D:\\Games\\BF1942\r\n@D:\r\n", 0, 3,
     "Ready. +timer", "Running batch lighting... You may exit. +timer started go.bat",
     [](TestApp& app) { app.setPaths(U"D:\\Games\\BF1942", U"MyLevel", U"BF1942"); },
     [](TestApp& app) { click(app.window->runLightingButton); }},
    {"save", "config.ini", "config.tmp",
     kWake + kBerlin + record("Midway", "E:\\BF", "changed", "DesertCombat", "011", "2"), 0, 4,
     "Ready. (Current),Wake,Midway,Berlin@2 " + kMidwayChanged,
     "Ready. (Current),Wake,Berlin,Midway@3 " + kMidwayChanged,
     [](TestApp& app) {
         PathsDialogWindow& w = openPaths(app);
         chooseRow(w.savedList, 2);
         type(w.levelBox, "changed");
     },
     [](TestApp& app) { click(app.window->pathsDialog()->window()->saveButton); }},
    {"delete", "config.ini", "config.tmp", kWake + kBerlin, 0, 4,
     "Ready. (Current),Wake,Midway,Berlin@0 Midway||||1.5|000",
     "Ready. (Current),Wake,Berlin@0 Midway||||1.5|000",
     [](TestApp& app) { chooseRow(openPaths(app).savedList, 2); },
     [](TestApp& app) { click(app.window->pathsDialog()->window()->deleteButton); }},
};

// What must hold after every run, failed or not; empty when all holds.
QStringList problemsAfter(TestApp& app, const Command& c, bool failed) {
    QStringList found;
    const auto expect = [&found](bool holds, const QString& what) {
        if (!holds)
            found << what;
    };
    for (auto kept = kKept.begin(); kept != kKept.end(); ++kept) {
        const bool changes = !failed && kept.key() == c.file;
        expect(app.bytesOf(kept.key()) == (changes ? c.written : kept.value()),
               kept.key() + (changes ? " not as written" : " changed"));
    }
    const QStringList files = QDir(app.dir.path()).entryList(QDir::Files | QDir::Hidden);
    expect(files == QStringList(kKept.keys()), "files " + files.join(','));
    expect(app.dialogs.boxes.size() == c.questions + (failed ? 1 : 0), "boxes");
    const AskedBox box = app.dialogs.boxes.value(app.dialogs.boxes.size() - 1);
    expect(!failed || (box.style.icon == MsgBoxIcon::Critical &&
                       box.prompt.contains("Injected failure.") &&
                       box.prompt.contains(QDir::toNativeSeparators(app.path(c.file)))),
           "box " + box.prompt);
    const QString state = stateOf(app);
    expect(state == (failed ? c.failedState : c.doneState), "state " + state);
    return found;
}
} // namespace

class FaultSweepTest : public QObject {
    Q_OBJECT
  private slots:
    void everyOperationFailsInTurn_data() {
        QTest::addColumn<int>("command");
        for (int i = 0; i < int(std::size(kCommands)); ++i)
            QTest::newRow(kCommands[i].name) << i;
    }
    void everyOperationFailsInTurn() {
        QFETCH(int, command);
        const Command& c = kCommands[command];
        int points = 0, failures = 0;
        for (int failAt = 1;; ++failAt) {
            TestApp app;
            for (auto kept = kKept.begin(); kept != kKept.end(); ++kept)
                app.write(kept.key(), kept.value());
            app.write(c.temp, "leftover"); // left by a killed run: never read, gone afterwards
            c.prepare(app);
            app.files.operations = 0;
            app.files.journal.clear();
            app.files.failAt = failAt;
            c.run(app);

            const bool failed = app.files.operations >= failAt;
            const QStringList problems = problemsAfter(app, c, failed);
            if (!problems.isEmpty()) {
                ++failures;
                qWarning("%s, %s: %s", c.name,
                         qPrintable(failed ? app.files.journal.value(failAt - 1) + " failing"
                                           : QString("no failure")),
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
};

QTEST_MAIN(FaultSweepTest)
#include "fault_sweep_qtest.moc"
