// The two commands that write files: the export of lmList.dat and the lighting run, as the user
// meets them. The bytes themselves are the core's; each failing file operation is swept in
// tests/reliability.
#include <QDir>
#include <QPushButton>
#include <QtTest>

#include "core/batch_script.h"
#include "gui/main_window/patch_grid.h"
#include "platform/click_check_box.h"
#include "platform/combo_list.h"
#include "platform/form_timer.h"
#include "platform/menu_entry.h"
#include "support/test_app.h"
#include "support/user_input.h"

using namespace umbrakit;

namespace {
const QString kRunning = "Running batch lighting... You may exit.";
const QString kIncomplete = "Error: Incomplete Config. Set Paths or Load Config.";
const std::u32string kGame = U"D:\\Games\\BF1942";
const QByteArray kOldScript = "@echo an earlier script\r\n@rem that must stay as it is\r\n";

void exportTo(TestApp& app, const QString& name) {
    app.dialogs.fileAnswers.enqueue(app.path(name));
    QTest::mouseClick(app.window->exportButton, Qt::LeftButton);
}

// The core's script for the usual configuration; passes 1 terrain, 2 merge, 4 object.
QByteArray scriptFor(int passes) {
    const Configuration c{kGame, U"MyLevel", U"BF1942", 1.5,
                          {bool(passes & 1), bool(passes & 2), bool(passes & 4)}};
    return QByteArray::fromStdString(std::get<std::string>(scriptBytes(c, kWestern)));
}

const struct Refusal {
    const char* why;
    std::u32string game, level, mod;
    double darkness;
    QString status;
    QString named = {}; // what the box names, if any
} kRefusals[] = {
    {"no game path", U"", U"MyLevel", U"BF1942", 1.5, kIncomplete},
    {"no mod name", kGame, U"MyLevel", U"", 1.5, kIncomplete},
    {"darkness 0", kGame, U"MyLevel", U"BF1942", 0.0, kIncomplete},
    {"blanks pass", U" ", U" ", U" ", 1.5, kRunning},
    {"game path unwritable", kGame + U"Ωé", U"MyLevel", U"BF1942", 1.5, "Ready.",
     "Game Path \"D:\\Games\\BF1942Ωé\" holds the character \"Ω\""},
    {"mod name unwritable", kGame, U"MyLevel", U"😀é", 1.5, "Ready.",
     "Mod Name \"😀é\" holds the character \"😀\""},
};
} // namespace

class ExportAndLightingTest : public QObject {
    Q_OBJECT
  private slots:
    void exportWritesOneRecordPerTickedPatch() {
        TestApp app;
        exportTo(app, "none.dat");
        QVERIFY(QFile::exists(app.path("none.dat")) && app.bytesOf("none.dat").isEmpty());

        app.window->worldSizeList->setListIndex(3); // "32x32"
        for (int index : {0, 5, 35, 255})
            app.window->patchGrid->patch(index)->setChecked(true);
        app.setPaths(kGame, U"MyLevel", U"BF1942");
        exportTo(app, "lmList.dat");
        QCOMPARE(app.bytesOf("lmList.dat"), QByteArray("\x00\x00\x05\x00\x03\x02\x0F\x0F", 8));
        QCOMPARE(app.status(), QString("Saved!"));
        QVERIFY(app.window->statusTimer->Enabled());
        // complete beside the old list before it takes its place
        QCOMPARE(app.files.journal.constLast(),
                 "renameOver " + app.path("lmList.dat.tmp") + " " + app.path("lmList.dat"));
        // the dialog is set afresh every time, in the level's textures folder
        const FileDialogRequest asked = app.dialogs.fileRequests.at(1);
        QCOMPARE(asked.filter + "|" + asked.fileName + "|" + asked.initDir,
                 "lmList.dat|lmList.dat|All Files (*.*)|*.*|lmList.dat|"
                 "D:\\Games\\BF1942\\ShadowWork\\bf1942\\levels\\MyLevel\\textures");
    }

    void exportCancelledOrNotOverwritten() {
        TestApp app;
        app.window->exportEntry->trigger(); // the dialog answers no name
        QCOMPARE(app.status(), QString("Save Cancled."));
        QVERIFY(app.window->statusTimer->Enabled());

        app.window->statusTimer->setEnabled(false);
        app.write("lmList.dat", "old list");
        exportTo(app, "lmList.dat"); // answered No
        QCOMPARE(app.bytesOf("lmList.dat"), QByteArray("old list"));
        QCOMPARE(app.status(), QString("Preparing to Save..."));
        QVERIFY(!app.window->statusTimer->Enabled());
        const AskedBox box = app.dialogs.boxes.constLast();
        QCOMPARE(box.prompt + "|" + box.title, "File Exists, Do you want to overwrite?|File Exists...");
        QVERIFY(box.style == MsgBoxStyle{MsgBoxButtons::YesNo});
    }

    void everyRouteWritesTheScriptAndStartsIt_data() {
        QTest::addColumn<QString>("route");
        QTest::addColumn<int>("passes"); // between them the rows tell any two passes apart
        QTest::newRow("Run Lighting button, all passes") << "button" << 7;
        QTest::newRow("Go! menu entry, terrain only") << "menu" << 1;
        QTest::newRow("Ctrl+G, terrain and object") << "key" << 5;
    }
    void everyRouteWritesTheScriptAndStartsIt() {
        QFETCH(QString, route);
        QFETCH(int, passes);
        TestApp app;
        app.write("go.bat", kOldScript);
        app.setPaths(kGame, U"MyLevel", U"BF1942");
        for (Pass pass : kPasses)
            if (passes & (1 << int(pass)))
                clickBox(app.window->passBoxes[int(pass)]);

        if (route == "button") {
            QTest::mouseClick(app.window->runLightingButton, Qt::LeftButton);
        } else if (route == "menu") {
            app.window->goEntry->trigger();
        } else {
            app.window->activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(app.window.get()));
            QTest::keyClick(app.window.get(), Qt::Key_G, Qt::ControlModifier);
        }
        QCOMPARE(app.bytesOf("go.bat"), scriptFor(passes));
        QCOMPARE(app.files.journal.constLast(),
                 "renameOver " + app.path("go.bat.tmp") + " " + app.path("go.bat"));
        QCOMPARE(app.launcher.started, QStringList{app.path("go.bat")});
        QVERIFY(app.dialogs.boxes.isEmpty());
        QCOMPARE(app.status(), kRunning);
        QVERIFY(app.window->statusTimer->Enabled());
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
        app.setPaths(r.game, r.level, r.mod, r.darkness);
        app.window->goEntry->trigger();
        const bool runs = r.status == kRunning;
        QCOMPARE(app.status(), r.status);
        QVERIFY(app.window->statusTimer->Enabled());
        QCOMPARE(app.launcher.started.size(), runs ? 1 : 0);
        QCOMPARE(app.bytesOf("go.bat") == kOldScript, !runs);
        QCOMPARE(app.dialogs.boxes.size(), r.named.isEmpty() ? 0 : 1);
        if (!r.named.isEmpty())
            QVERIFY2(app.dialogs.boxes[0].prompt.contains(r.named), qPrintable(r.named));
    }

    // The user decides; Yes writes the text as the code page's bytes.
    void charactersTheBatchProcessorReadsOtherwise() {
        TestApp app;
        app.setPaths(U"D:\\Jeux\\Déjà vu", U"MyLevel", U"A&B");
        app.window->goEntry->trigger(); // answered No
        QCOMPARE(app.dialogs.boxes.size(), 1);
        QVERIFY(app.dialogs.boxes[0].prompt.contains("Game Path holds \"é\""));
        QVERIFY(app.dialogs.boxes[0].prompt.contains("Mod Name holds \"&\""));
        QVERIFY(!QFile::exists(app.path("go.bat")) && app.launcher.started.isEmpty());

        app.dialogs.boxAnswers.enqueue(MsgBoxAnswer::Yes);
        app.window->goEntry->trigger();
        QVERIFY(app.bytesOf("go.bat").startsWith("@cd D:\\Jeux\\D\xE9j\xE0 vu\r\n"));
        QCOMPARE(app.status(), kRunning);
    }

    void whatTheLauncherAnswers() {
        const std::pair<LaunchResult::Outcome, QString> answers[] = {
            {LaunchResult::NoBatchProcessor, "Wine"}, {LaunchResult::Failed, "Permission denied"}};
        for (const auto& [outcome, told] : answers) {
            TestApp app;
            app.setPaths(kGame, U"MyLevel", U"BF1942"); // and no pass
            app.launcher.answer = {outcome, "Permission denied"};
            app.window->goEntry->trigger();
            QCOMPARE(app.bytesOf("go.bat"), scriptFor(0));
            QCOMPARE(app.dialogs.boxes.size(), 1);
            const QString prompt = app.dialogs.boxes[0].prompt;
            QVERIFY(prompt.contains(QDir::toNativeSeparators(app.path("go.bat"))));
            QVERIFY2(prompt.contains(told), qPrintable(prompt));
            QCOMPARE(app.status(), QString("Ready."));
            QVERIFY(app.window->statusTimer->Enabled());
        }
    }
};

QTEST_MAIN(ExportAndLightingTest)
#include "export_and_lighting_qtest.moc"
