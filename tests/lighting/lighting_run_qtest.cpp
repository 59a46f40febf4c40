// The lighting run as the user meets it: go.bat in the program's folder, the start, the status
// line, and what happens when the configuration, the text or the start fails. Each failing file
// operation in turn is swept in tests/reliability/fault_sweep_qtest.cpp.
#include <QDir>
#include <QFile>
#include <QPushButton>
#include <QtTest>

#include "platform/click_check_box.h"
#include "platform/form_timer.h"
#include "platform/menu_entry.h"
#include "support/test_app.h"

using namespace umbrakit;

namespace {
const QString kRunning = "Running batch lighting... You may exit.";
const QString kIncomplete = "Error: Incomplete Config. Set Paths or Load Config.";
// Longer than a script with all passes off, so that a leftover would show.
const QByteArray kOldScript = "@echo an earlier script\r\n@rem none of whose lines may survive "
                              "a new run\r\n@rem not even this one\r\n";

// The worked example's lines: folder, drive, terrain, merge, object.
const QByteArrayList kExampleLines = {
    R"(@cd D:\Games\BF1942)", R"(@D:)",
    R"("D:\Games\BF1942\BF1942.exe" +game BF1942 +workingFolder "D:\Games\BF1942\ShadowWork\" )"
    R"(+traceTerrainShadows "bf1942\levels\MyLevel\" "MyLevel\lmList.dat" )"
    R"("D:\Games\BF1942\ShadowWork\bf1942\levels\MyLevel\textures")",
    R"("D:\Games\BF1942\BF1942.exe" +game BF1942 +workingFolder "D:\Games\BF1942\ShadowWork\" )"
    R"(+mergeTerrainShadows "bf1942\levels\MyLevel\ 1.5 0.4")",
    R"("D:\Games\BF1942\BF1942.exe" +game BF1942 +workingFolder "D:\Games\BF1942\ShadowWork\" )"
    R"(+traceObjectShadows "bf1942\levels\MyLevel\")"};

QByteArray scriptOf(const QByteArrayList& lines) {
    return lines.join("\r\n") + "\r\n";
}

void setWorkedExample(Form1& form) {
    form.gamePath = R"(D:\Games\BF1942)";
    form.levelName = "MyLevel";
    form.modName = "BF1942";
    form.shadowDarkness = 1.5;
}

// Game path, level name and mod name, by number.
QString& stringField(Form1& form, int field) {
    return field == 0 ? form.gamePath : field == 1 ? form.levelName : form.modName;
}

void clickGo(TestApp& app) {
    QTest::mouseClick(app.form->Go_Button, Qt::LeftButton);
}
} // namespace

class LightingRunTest : public QObject {
    Q_OBJECT

    // After a run that must not touch go.bat or start anything.
    void verifyNothingDone(TestApp& app) {
        QCOMPARE(app.bytesOf("go.bat"), kOldScript);
        QVERIFY(!QFile::exists(app.path("go.bat.tmp")));
        QVERIFY(app.launcher.started.isEmpty());
        QVERIFY(app.status() != kRunning);
        QVERIFY(app.form->Timer1->Enabled());
    }

  private slots:
    void workedExample_data() {
        QTest::addColumn<QString>("route");
        QTest::newRow("Run Lighting button") << "button";
        QTest::newRow("Go! menu entry") << "menu";
        QTest::newRow("Ctrl+G") << "key";
    }
    void workedExample() {
        QFETCH(QString, route);
        TestApp app;
        app.write("go.bat", kOldScript);
        setWorkedExample(*app.form);
        for (ClickCheckBox* pass :
             {app.form->TerrainCheck, app.form->MergeCheck, app.form->ObjectCheck})
            QTest::mouseClick(pass, Qt::LeftButton, {}, QPoint(6, pass->height() / 2));

        if (route == "button") {
            clickGo(app);
        } else if (route == "menu") {
            app.form->menuRunGo->trigger();
        } else {
            app.form->activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(app.form.get()));
            QTest::keyClick(app.form.get(), Qt::Key_G, Qt::ControlModifier);
        }

        QCOMPARE(app.bytesOf("go.bat"), scriptOf(kExampleLines));
        QVERIFY(!QFile::exists(app.path("go.bat.tmp")));
        QCOMPARE(app.launcher.started, QStringList{app.path("go.bat")});
        QVERIFY(app.dialogs.boxes.isEmpty());
        QCOMPARE(app.status(), kRunning);
        QCOMPARE(app.form->Timer1->Interval(), 7500);
        app.form->Timer1->elapseNow();
        QCOMPARE(app.status(), QString("Ready."));
        QVERIFY(!app.form->Timer1->Enabled());
    }

    // Each subset of passes, all off included, gives its lines in the fixed order.
    void passesChooseTheLines() {
        TestApp app;
        setWorkedExample(*app.form);
        for (int mask = 0; mask < 8; ++mask) {
            app.form->TerrainCheck->setValue(mask & 1);
            app.form->MergeCheck->setValue((mask >> 1) & 1);
            app.form->ObjectCheck->setValue((mask >> 2) & 1);
            QByteArrayList expected = kExampleLines.mid(0, 2);
            for (int pass = 0; pass < 3; ++pass)
                if (mask & (1 << pass))
                    expected << kExampleLines[2 + pass];
            clickGo(app);
            QCOMPARE(app.bytesOf("go.bat"), scriptOf(expected));
            QCOMPARE(app.launcher.started.size(), mask + 1);
            QCOMPARE(app.status(), kRunning);
        }
    }

    void completeness_data() {
        QTest::addColumn<int>("field"); // the string set to `text`: 0 to 2, 3 for all, -1 none
        QTest::addColumn<QString>("text");
        QTest::addColumn<double>("darkness");
        QTest::addColumn<bool>("runs");
        QTest::newRow("no game path") << 0 << "" << 1.5 << false;
        QTest::newRow("no level name") << 1 << "" << 1.5 << false;
        QTest::newRow("no mod name") << 2 << "" << 1.5 << false;
        QTest::newRow("darkness 0") << -1 << "" << 0.0 << false;
        QTest::newRow("darkness negative") << -1 << "" << -0.5 << false;
        QTest::newRow("blanks pass") << 3 << " " << 1.5 << true;
        QTest::newRow("tiny darkness passes") << -1 << "" << 1e-9 << true;
    }
    void completeness() {
        QFETCH(int, field);
        QFETCH(QString, text);
        QFETCH(double, darkness);
        QFETCH(bool, runs);
        TestApp app;
        app.write("go.bat", kOldScript);
        setWorkedExample(*app.form);
        app.form->shadowDarkness = darkness;
        for (int i = 0; i < 3; ++i)
            if (field == i || field == 3)
                stringField(*app.form, i) = text;

        clickGo(app);
        if (runs) {
            QCOMPARE(app.launcher.started.size(), 1);
            QCOMPARE(app.status(), kRunning);
            QVERIFY(app.bytesOf("go.bat") != kOldScript);
            return;
        }
        QCOMPARE(app.status(), kIncomplete);
        verifyNothingDone(app);
        QVERIFY(app.files.journal.isEmpty());
        QVERIFY(app.dialogs.boxes.isEmpty());
    }

    void unwritableCharacter_data() {
        QTest::addColumn<int>("field");
        QTest::addColumn<QString>("label");
        QTest::addColumn<QString>("character");
        QTest::newRow("game path") << 0 << "Game Path" << QString::fromUtf8("Ω");
        QTest::newRow("level name") << 1 << "Level Name" << QString::fromUtf8("✓");
        QTest::newRow("mod name") << 2 << "Mod Name" << QString::fromUtf8("😀");
    }
    void unwritableCharacter() {
        QFETCH(int, field);
        QFETCH(QString, label);
        QFETCH(QString, character);
        TestApp app;
        app.write("go.bat", kOldScript);
        setWorkedExample(*app.form);
        stringField(*app.form, field) += character + QString::fromUtf8("é");

        clickGo(app);
        QCOMPARE(app.dialogs.boxes.size(), 1);
        QVERIFY(app.dialogs.boxes[0].prompt.contains(label));
        QVERIFY(app.dialogs.boxes[0].prompt.contains("\"" + character + "\""));
        QCOMPARE(app.status(), QString("Ready."));
        verifyNothingDone(app);
        QVERIFY(app.files.journal.isEmpty());
    }

    // What the code page holds goes in as its single bytes, never as UTF-8.
    void writesSingleByteText() {
        TestApp app;
        setWorkedExample(*app.form);
        app.form->gamePath = QString::fromUtf8(R"(D:\Jeux\Déjà vu)");
        app.form->modName = "A&B";
        // cmd would read these otherwise: the user is asked, and No changes nothing
        clickGo(app);
        QCOMPARE(app.dialogs.boxes.size(), 1);
        QVERIFY(app.dialogs.boxes[0].prompt.contains(QString::fromUtf8("Game Path holds \"é\"")));
        QVERIFY(app.dialogs.boxes[0].prompt.contains("Mod Name holds \"&\""));
        QVERIFY(!QFile::exists(app.path("go.bat")));
        app.dialogs.boxAnswers.enqueue(MsgBoxResult::Yes);
        clickGo(app);
        const QByteArray script = app.bytesOf("go.bat");
        QVERIFY(script.startsWith("@cd D:\\Jeux\\D\xE9j\xE0 vu\r\n"));
        QVERIFY(!script.contains(QString::fromUtf8("é").toUtf8()));
        QCOMPARE(app.status(), kRunning);
    }

    void launcherAnswers_data() {
        QTest::addColumn<int>("outcome");
        QTest::addColumn<QString>("told");
        QTest::newRow("no batch processor") << int(LaunchResult::NoBatchProcessor) << "Wine";
        QTest::newRow("start failed") << int(LaunchResult::Failed) << "Permission denied";
    }
    void launcherAnswers() {
        QFETCH(int, outcome);
        QFETCH(QString, told);
        TestApp app;
        setWorkedExample(*app.form);
        app.launcher.answer = {LaunchResult::Outcome(outcome), "Permission denied"};
        clickGo(app);

        QCOMPARE(app.bytesOf("go.bat"), scriptOf(kExampleLines.mid(0, 2)));
        QCOMPARE(app.launcher.started, QStringList{app.path("go.bat")});
        QCOMPARE(app.dialogs.boxes.size(), 1);
        QVERIFY(app.dialogs.boxes[0].prompt.contains(QDir::toNativeSeparators(app.path("go.bat"))));
        QVERIFY(app.dialogs.boxes[0].prompt.contains(told));
        QCOMPARE(app.status(), QString("Ready."));
        QVERIFY(app.form->Timer1->Enabled());
    }
};

QTEST_MAIN(LightingRunTest)
#include "lighting_run_qtest.moc"
