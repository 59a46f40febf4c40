// The export of lmList.dat and the lighting run as the user meets them; the bytes are the core's.
#include <QMenu>
#include <QPushButton>
#include <QtTest>

#include "core/batch_script.h"
#include "gui/main_window/patch_grid.h"
#include "platform/combo_list.h"
#include "platform/form_timer.h"
#include "platform/menu_entry.h"
#include "platform/spoken_notice.h"
#include "support/test_app.h"

using namespace umbrakit;

namespace {
const QString kRunning = "Running batch lighting... You may exit.";
const std::u32string kGame = U"D:\\Games\\BF1942";
const QByteArray kOld = "@echo an earlier file\r\n@rem that must stay as it is\r\n";

// The line's text is the last outcome that screen readers were told.
bool told(TestApp& app) {
    return app.window->statusLine->findChild<SpokenNotice*>()->accessibleName() == app.status();
}

QString outcome(TestApp& app) { // status line, timer, told, boxes, starts
    return app.status() + (app.window->statusTimer->Enabled() ? " +timer" : "") +
           (told(app) ? " +told" : "") +
           QString(" | %1 | %2").arg(app.dialogs.boxes.size()).arg(app.launcher.started.size());
}
} // namespace

class ExportAndLightingTest : public QObject {
    Q_OBJECT
  private slots:
    void exportWritesOneRecordPerTickedPatch() {
        TestApp app;
        app.window->exportEntry->trigger(); // the dialog answers no name
        QCOMPARE(outcome(app), "Save Cancled. +timer +told | 0 | 0");
        app.window->statusTimer->setEnabled(false);
        app.write("lmList.dat", kOld);
        app.dialogs.fileAnswers << app.path("lmList.dat");
        QTest::mouseClick(app.window->exportButton, Qt::LeftButton); // not overwritten
        QCOMPARE(outcome(app), "Preparing to Save... | 1 | 0");
        QCOMPARE(app.dialogs.boxes[0].prompt, QString("File Exists, Do you want to overwrite?"));
        QVERIFY(app.dialogs.boxes[0].style == MsgBoxStyle{MsgBoxButtons::YesNo});
        QCOMPARE(app.bytesOf("lmList.dat"), kOld);

        app.window->worldSizeList->setListIndex(3); // "32x32"
        for (int index : {0, 5, 35, 255})
            app.window->patchGrid->patch(index)->setChecked(true);
        app.setPaths(kGame, U"MyLevel", U"BF1942");
        app.dialogs.fileAnswers << app.path("lmList.dat");
        app.dialogs.boxAnswers << MsgBoxAnswer::Yes;
        QTest::mouseClick(app.window->exportButton, Qt::LeftButton);
        QCOMPARE(app.bytesOf("lmList.dat"), QByteArray("\x00\x00\x05\x00\x03\x02\x0F\x0F", 8));
        QVERIFY(app.status() == "Saved!" && told(app));
        // the dialog is set afresh every time, in the level's textures folder
        const FileDialogRequest asked = app.dialogs.fileRequests.constLast();
        QCOMPARE(asked.filter + "|" + asked.fileName + "|" + asked.initDir,
                 "lmList.dat|lmList.dat|All Files (*.*)|*.*|lmList.dat|"
                 "D:\\Games\\BF1942\\ShadowWork\\bf1942\\levels\\MyLevel\\textures");
    }

    // An entry of Run, Options ticks itself and its box alone; each route then runs that pass.
    void eachPassEntryAndEveryRouteWriteTheScriptAndStartIt() {
        const char* const passes[][3] = {
            {"Generate &TerrainShadows", "Generate &TerrainShadows", "+traceTerrainShadows"},
            {"&Merge TerrainShadows", "&Merge TerrainShadows", "+mergeTerrainShadows"},
            {"&Generate ObjectShadows", "Generate &ObjectShadows", "+traceObjectShadows"}};
        for (int route = 0; route < 3; ++route) {
            const auto& [entryCaption, boxCaption, engineOption] = passes[route];
            TestApp app;
            MainWindow& w = *app.window;
            app.write("go.bat", kOld);
            app.setPaths(kGame, U"MyLevel", U"BF1942");
            const QList<QAction*> entries = w.findChild<QMenu*>("menuRunOption")->actions();
            const auto entry = std::ranges::find(entries, entryCaption, &QAction::text);
            QVERIFY2(entry != entries.end(), entryCaption);
            (*entry)->trigger();
            for (QAction* other : entries)
                QCOMPARE(other->isChecked(), other == *entry);
            for (QCheckBox* box : w.findChildren<QCheckBox*>())
                QVERIFY2(box->isChecked() == (box->text() == boxCaption), boxCaption);
            w.activateWindow(); // for the shortcut
            QVERIFY(QTest::qWaitForWindowActive(&w));
            if (route == 0)
                QTest::mouseClick(w.runLightingButton, Qt::LeftButton);
            else if (route == 1)
                w.goEntry->trigger();
            else
                QTest::keyClick(&w, Qt::Key_G, Qt::ControlModifier);
            const QByteArray script = app.bytesOf("go.bat");
            QCOMPARE(script.toStdString(),
                     std::get<std::string>(scriptBytes(w.configuration(), kWestern)));
            QVERIFY2(script.count('\n') == 3 && script.split('\n')[2].contains(engineOption),
                     script.constData());
            QCOMPARE(app.launcher.started, QStringList{app.path("go.bat")});
            QCOMPARE(outcome(app), kRunning + " +timer +told | 0 | 1");
        }
    }

    // Refusals keep the old script, a failed start names go.bat, Yes runs anyway; blanks are text.
    void refusalsAndFailedStarts() {
        using enum LaunchResult::Outcome;
        const QString incomplete = "Error: Incomplete Config. Set Paths or Load Config.";
        const QByteArray written = "@cd D:\\Games\\BF1942\r\n@D:\r\n";
        const struct {
            std::u32string game, level, mod;
            LaunchResult::Outcome start;
            QString status, told;
            QByteArray script;
        } cases[] = {
            {U"", U"MyLevel", U"BF1942", Started, incomplete, "", kOld},
            {kGame, U"MyLevel", U"😀é", Started, "Ready.",
             "The Mod Name \"😀é\" holds the character \"😀\", which go.bat cannot hold.", kOld},
            {U"D:\\Jeux\\Déjà vu", U"MyLevel", U"A&B", Started, "Ready.", // answered No
             "- The Game Path holds \"é\": the batch processor reads it in the console's", kOld},
            {kGame, U"MyLevel", U"BF1942", NoBatchProcessor, "Ready.", "Install Wine", written},
            {kGame, U"MyLevel", U"BF1942", Failed, "Ready.", "Permission denied", written},
            {U" ", U"Déjà", U" ", Started, kRunning, "Level Name holds \"é\"", "@cd  \r\n@ \r\n"},
        };
        for (const auto& c : cases) {
            TestApp app;
            app.write("go.bat", kOld);
            app.setPaths(c.game, c.level, c.mod);
            app.launcher.answer = {c.start, "Permission denied"};
            app.dialogs.boxAnswers << (c.status == kRunning ? MsgBoxAnswer::Yes : MsgBoxAnswer::No);
            app.window->goEntry->trigger();
            QCOMPARE(app.status(), c.status);
            QVERIFY(app.window->statusTimer->Enabled());
            QCOMPARE(told(app), c.status != "Ready.");
            const QString told = app.dialogs.boxes.value(0).prompt;
            QVERIFY2(told.contains(c.told) && (c.told.isEmpty() == told.isEmpty()),
                     qPrintable(told));
            QCOMPARE(app.bytesOf("go.bat"), c.script);
            QVERIFY(c.start == Started ||
                    told.contains(QDir::toNativeSeparators(app.path("go.bat"))));
        }
    }
};

QTEST_MAIN(ExportAndLightingTest)
#include "export_and_lighting_qtest.moc"
