// Every file operation of every command that writes a file fails in turn: the first, the
// second, ... until a run completes. After each failure the user has been told, the files the
// user keeps are byte for byte what they were, and no temporary file is left.
#include <QDir>
#include <QtTest>
#include <functional>

#include "paths_dialog/dialog_driver.h"
#include "platform/form_timer.h"

using namespace umbrakit;

namespace {
const QByteArray kWake = record("Wake", "D:\\Saved Games\\BF1942", "Wake", "BF1942", "100", "1.5");
const QByteArray kMidway = record("Midway", "E:\\BF", "Midway", "DesertCombat", "011", "2");
const QByteArray kBerlin = record("Berlin", "F:\\BF", "Berlin", "EoD", "000", "0.5");
const QString kRunning = "Running batch lighting... You may exit.";
const QStringList kAllRows{"(Current)", "Wake", "Midway", "Berlin"};

// The files a run must never lose, as they stand before it: an old script longer than the new
// one, so that a leftover line would show.
const QMap<QString, QByteArray> kKept{
    {"config.ini", kWake + kMidway + kBerlin},
    {"lmList.dat", "old list"},
    {"go.bat", "@echo an earlier script\r\n@rem none of whose lines may survive a new run\r\n"}};

struct Problems {
    QStringList found;
    void expect(bool holds, const QString& what) {
        if (!holds)
            found << what;
    }
};

struct Command {
    const char* name;
    QString file;       // the file it writes, which must be whole after a failure
    QString temp;       // the new file beside it until the rename
    QByteArray written; // that file once a run completes
    int questions;      // boxes of a run without failure
    int fewestPoints;   // operations it makes at least: a shorter sweep has missed some
    std::function<void(TestApp&)> prepare, run;
    // The rest of the state after a failure (failed) or after the run that completed.
    std::function<void(TestApp&, bool failed, Problems&)> state;
};

PathsDialogWindow& dialogOf(TestApp& app) {
    return *app.form->pathsDialog()->window();
}

void dialogShows(TestApp& app, const QStringList& rows, int selected, const QString& texts,
                 Problems& p) {
    PathsDialogWindow& w = dialogOf(app);
    p.expect(rowsOf(w.SavedSettings) == rows, "rows " + rowsOf(w.SavedSettings).join(','));
    p.expect(w.SavedSettings->ListIndex() == selected, "selected row");
    p.expect(w.SettingName_Text->text() + w.LevelName_Text->text() == texts, "name and level");
}

void chooseMidway(TestApp& app) {
    choose(openPaths(app).SavedSettings, 2);
}

const Command kCommands[] = {
    {"export", "lmList.dat", "lmList.dat.tmp", QByteArray("\x00\x00", 2), 1, 3,
     [](TestApp& app) {
         app.form->CheckBoxArray[0]->setChecked(true);
         app.dialogs.fileAnswers.enqueue(app.path("lmList.dat"));
         app.dialogs.boxAnswers.enqueue(MsgBoxResult::Yes); // overwrite the old list
     },
     [](TestApp& app) { QTest::mouseClick(app.form->lmList_Button, Qt::LeftButton); },
     [](TestApp& app, bool failed, Problems& p) {
         p.expect((app.status() == "Saved!") != failed, "status " + app.status());
         p.expect(app.form->Timer1->Enabled(), "Timer1 started");
     }},
    {"lighting run", "go.bat", "go.bat.tmp", "@cd D:\\Games\\BF1942\r\n@D:\r\n", 0, 3,
     [](TestApp& app) {
         app.form->gamePath = "D:\\Games\\BF1942";
         app.form->levelName = "MyLevel";
         app.form->modName = "BF1942";
         app.form->shadowDarkness = 1.5;
     },
     [](TestApp& app) { QTest::mouseClick(app.form->Go_Button, Qt::LeftButton); },
     [](TestApp& app, bool failed, Problems& p) {
         p.expect(app.launcher.started ==
                      (failed ? QStringList() : QStringList{app.path("go.bat")}),
                  "started " + app.launcher.started.join(','));
         p.expect((app.status() == kRunning) != failed, "status " + app.status());
         p.expect(app.form->Timer1->Enabled(), "Timer1 started");
     }},
    {"save", "config.ini", "config.tmp",
     kWake + kBerlin + record("Midway", "E:\\BF", "changed", "DesertCombat", "011", "2"), 0, 4,
     [](TestApp& app) {
         chooseMidway(app);
         type(dialogOf(app).LevelName_Text, "changed");
     },
     [](TestApp& app) { click(dialogOf(app).Save); },
     [](TestApp& app, bool failed, Problems& p) {
         dialogShows(app, failed ? kAllRows : QStringList{"(Current)", "Wake", "Berlin", "Midway"},
                     failed ? 2 : 3, "Midwaychanged", p);
     }},
    {"delete", "config.ini", "config.tmp", kWake + kBerlin, 0, 4, chooseMidway,
     [](TestApp& app) { click(dialogOf(app).Delete); },
     [](TestApp& app, bool failed, Problems& p) {
         // Row 0 shows the current configuration again, whose level name is empty.
         dialogShows(app, failed ? kAllRows : QStringList{"(Current)", "Wake", "Berlin"}, 0,
                     "Midway", p);
     }},
};

// What must hold after every run, failed or not; empty when all holds.
QStringList problemsAfter(TestApp& app, const Command& command, bool failed) {
    Problems p;
    for (auto kept = kKept.begin(); kept != kKept.end(); ++kept) {
        const bool changes = !failed && kept.key() == command.file;
        p.expect(app.bytesOf(kept.key()) == (changes ? command.written : kept.value()),
                 kept.key() + (changes ? " not as written" : " changed"));
    }
    const QStringList files = QDir(app.dir.path()).entryList(QDir::Files | QDir::Hidden);
    p.expect(files == QStringList(kKept.keys()), "files " + files.join(','));
    p.expect(app.dialogs.boxes.size() == command.questions + (failed ? 1 : 0), "boxes");
    if (failed && !app.dialogs.boxes.isEmpty()) {
        const AskedBox& box = app.dialogs.boxes.constLast();
        p.expect(box.buttons == MsgBoxStyle::Critical, "box icon");
        p.expect(box.prompt.contains(QDir::toNativeSeparators(app.path(command.file))) &&
                     box.prompt.contains("Injected failure."),
                 "box " + box.prompt);
    }
    command.state(app, failed, p);
    return p.found;
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
            // Left by a run that was killed: never read, and gone afterwards.
            app.write(c.temp, "leftover");
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
