// The lighting run as the user meets it: the routes, the core's script written beside the old
// one and started, the refusals, the question about characters the batch processor reads
// otherwise, and the launcher's answers. The script text itself is tested in the core, each
// failing file operation in tests/reliability/fault_sweep_qtest.cpp.
#include <QDir>
#include <QFile>
#include <QPushButton>
#include <QtTest>

#include "core/batch_script.h"
#include "platform/click_check_box.h"
#include "platform/form_timer.h"
#include "platform/menu_entry.h"
#include "support/test_app.h"
#include "support/user_input.h"

using namespace umbrakit;

namespace {
const QString kRunning = "Running batch lighting... You may exit.";
const QString kIncomplete = "Error: Incomplete Config. Set Paths or Load Config.";
const QString kGame = R"(D:\Games\BF1942)";
const QByteArray kOldScript = "@echo an earlier script\r\n@rem that must stay as it is\r\n";

void setConfiguration(Form1& form, const QString& game = kGame, const QString& level = "MyLevel",
                      const QString& mod = "BF1942", double darkness = 1.5) {
    form.gamePath = game;
    form.levelName = level;
    form.modName = mod;
    form.shadowDarkness = darkness;
}

// The core's script for the default configuration; passes 1 terrain, 2 merge, 4 object.
QByteArray scriptFor(int passes) {
    return QByteArray::fromStdString(
        composeScript({kGame.toStdString(), "MyLevel", "BF1942", 1.5, bool(passes & 1),
                       bool(passes & 2), bool(passes & 4)}));
}

const struct Refusal {
    const char* why;
    QString game, level, mod;
    double darkness;
    QString status;
    QString field = {}, character = {}; // what the box names, if any
} kRefusals[] = {
    {"no game path", "", "MyLevel", "BF1942", 1.5, kIncomplete},
    {"no level name", kGame, "", "BF1942", 1.5, kIncomplete},
    {"no mod name", kGame, "MyLevel", "", 1.5, kIncomplete},
    {"darkness 0", kGame, "MyLevel", "BF1942", 0.0, kIncomplete},
    {"blanks pass", " ", " ", " ", 1.5, kRunning},
    {"game path unwritable", kGame + "Ωé", "MyLevel", "BF1942", 1.5, "Ready.", "Game Path", "Ω"},
    {"level name unwritable", kGame, "✓é", "BF1942", 1.5, "Ready.", "Level Name", "✓"},
    {"mod name unwritable", kGame, "MyLevel", "😀é", 1.5, "Ready.", "Mod Name", "😀"},
};

void clickGo(TestApp& app) {
    QTest::mouseClick(app.form->Go_Button, Qt::LeftButton);
}
} // namespace

class LightingRunTest : public QObject {
    Q_OBJECT
  private slots:
    void routesWriteTheScriptAndStartIt_data() {
        QTest::addColumn<QString>("route");
        QTest::addColumn<int>("passes"); // between them the rows tell any two passes apart
        QTest::newRow("Run Lighting button, all passes") << "button" << 7;
        QTest::newRow("Go! menu entry, terrain only") << "menu" << 1;
        QTest::newRow("Ctrl+G, terrain and object") << "key" << 5;
    }
    void routesWriteTheScriptAndStartIt() {
        QFETCH(QString, route);
        QFETCH(int, passes);
        TestApp app;
        app.write("go.bat", kOldScript);
        setConfiguration(*app.form);
        ClickCheckBox* const boxes[] = {app.form->TerrainCheck, app.form->MergeCheck,
                                        app.form->ObjectCheck};
        for (int pass = 0; pass < 3; ++pass)
            if (passes & (1 << pass))
                clickBox(boxes[pass]);

        if (route == "button") {
            clickGo(app);
        } else if (route == "menu") {
            app.form->menuRunGo->trigger();
        } else {
            app.form->activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(app.form.get()));
            QTest::keyClick(app.form.get(), Qt::Key_G, Qt::ControlModifier);
        }

        QCOMPARE(app.bytesOf("go.bat"), scriptFor(passes));
        // complete beside the old script before it takes its place
        QCOMPARE(app.files.journal.constLast(),
                 "renameOver " + app.path("go.bat.tmp") + " " + app.path("go.bat"));
        QCOMPARE(app.launcher.started, QStringList{app.path("go.bat")});
        QVERIFY(app.dialogs.boxes.isEmpty());
        QCOMPARE(app.status(), kRunning);
        QVERIFY(app.form->Timer1->Enabled());
    }

    void refusals_data() {
        QTest::addColumn<int>("row");
        for (int row = 0; row < int(std::size(kRefusals)); ++row)
            QTest::newRow(kRefusals[row].why) << row;
    }
    void refusals() {
        QFETCH(int, row);
        const Refusal& r = kRefusals[row];
        TestApp app;
        app.write("go.bat", kOldScript);
        setConfiguration(*app.form, r.game, r.level, r.mod, r.darkness);
        clickGo(app);

        const bool runs = r.status == kRunning;
        QCOMPARE(app.status(), r.status);
        QVERIFY(app.form->Timer1->Enabled());
        QCOMPARE(app.launcher.started.size(), runs ? 1 : 0);
        QCOMPARE(app.bytesOf("go.bat") == kOldScript, !runs);
        QCOMPARE(app.files.journal.isEmpty(), !runs);
        QCOMPARE(app.dialogs.boxes.size(), r.field.isEmpty() ? 0 : 1);
        if (!r.field.isEmpty())
            QVERIFY(app.dialogs.boxes[0].prompt.contains(r.field) &&
                    app.dialogs.boxes[0].prompt.contains("\"" + r.character + "\""));
    }

    // The user decides; Yes writes the text as the code page's single bytes.
    void charactersTheBatchProcessorReadsOtherwise() {
        TestApp app;
        setConfiguration(*app.form, R"(D:\Jeux\Déjà vu)", "MyLevel", "A&B");
        clickGo(app); // answered No
        QCOMPARE(app.dialogs.boxes.size(), 1);
        QVERIFY(app.dialogs.boxes[0].prompt.contains("Game Path holds \"é\""));
        QVERIFY(app.dialogs.boxes[0].prompt.contains("Mod Name holds \"&\""));
        QVERIFY(!QFile::exists(app.path("go.bat")) && app.launcher.started.isEmpty());

        app.dialogs.boxAnswers.enqueue(MsgBoxResult::Yes);
        clickGo(app);
        QVERIFY(app.bytesOf("go.bat").startsWith("@cd D:\\Jeux\\D\xE9j\xE0 vu\r\n"));
        QCOMPARE(app.status(), kRunning);
    }

    void launcherAnswers() {
        const std::pair<LaunchResult::Outcome, QString> answers[] = {
            {LaunchResult::NoBatchProcessor, "Wine"}, {LaunchResult::Failed, "Permission denied"}};
        for (const auto& [outcome, told] : answers) {
            TestApp app;
            setConfiguration(*app.form); // and no pass
            app.launcher.answer = {outcome, "Permission denied"};
            clickGo(app);
            QCOMPARE(app.bytesOf("go.bat"), scriptFor(0));
            QCOMPARE(app.launcher.started, QStringList{app.path("go.bat")});
            QCOMPARE(app.dialogs.boxes.size(), 1);
            const QString prompt = app.dialogs.boxes[0].prompt;
            QVERIFY(prompt.contains(QDir::toNativeSeparators(app.path("go.bat"))));
            QVERIFY2(prompt.contains(told), qPrintable(prompt));
            QCOMPARE(app.status(), QString("Ready."));
            QVERIFY(app.form->Timer1->Enabled());
        }
    }
};

QTEST_MAIN(LightingRunTest)
#include "lighting_run_qtest.moc"
