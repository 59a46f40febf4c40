// Opening, Cancel, OK and the close box of the paths dialog, and the game folder browse.
#include <QSignalSpy>

#include "support/dialog_driver.h"
#include "platform/form_timer.h"

using namespace umbrakit;

class PathsDialogLifecycleTest : public QObject {
    Q_OBJECT
  private slots:
    void cancelKeepsEverythingForTheNextOpeningAndOkAppliesIt() {
        TestApp app;
        app.write("config.ini", record("Wake", "D:\\BF", "Wake", "BF1942", "110", "2"));
        app.form->menuRunTerrain->trigger();
        PathsDialogWindow& w = openPaths(app);
        QVERIFY(app.status() == "Ready." && !app.form->Timer1->Enabled());
        QCOMPARE(texts(w), "(Current)||||1.5|100");
        choose(w.SavedSettings, 1); // terrain and merge
        type(w.LevelName_Text, "Level =1");
        type(w.ModName_Text->lineEdit(), "Not A Listed Mod");
        type(w.shadow_Text, " 0.75 ");
        click(w.CancelButton);
        QVERIFY(!w.isVisible() && app.form->levelName.isEmpty());

        app.form->menuRunMerge->trigger(); // seen neither by the hidden dialog nor by a reopening
        const int operations = app.files.operations;
        QCOMPARE(&openPaths(app), &w);
        QCOMPARE(app.files.operations, operations); // no new load
        QCOMPARE(w.SavedSettings->ListIndex(), 1);
        QCOMPARE(texts(w), "Wake|D:\\BF|Level =1|Not A Listed Mod| 0.75 |110");
        QCOMPARE(w.ModName_Text->ListCount(), 3);

        app.form->menuRunMerge->trigger(); // merge off again, so OK must switch it on
        QSignalSpy terrain(app.form->TerrainCheck, &ClickCheckBox::Click);
        QSignalSpy merge(app.form->MergeCheck, &ClickCheckBox::Click);
        QSignalSpy object(app.form->ObjectCheck, &ClickCheckBox::Click);
        click(w.OKButton);
        QCOMPARE(app.form->gamePath + "|" + app.form->levelName + "|" + app.form->modName,
                 "D:\\BF|Level =1|Not A Listed Mod");
        QCOMPARE(app.form->shadowDarkness, 0.75);
        QCOMPARE(terrain.count() * 100 + merge.count() * 10 + object.count(), 10); // changes only
        QVERIFY(app.form->mergeBoolean == -1 && app.form->menuRunMerge->Checked());
        QVERIFY(!app.form->pathsDialog()->isLoaded());
        QVERIFY(app.dialogs.boxes.isEmpty() && app.files.operations == operations);
    }

    void closeBoxUnloadsAndAppliesNothing() {
        TestApp app;
        PathsDialogWindow* w = &openPaths(app);
        type(w->GamePath_Text, "C:\\Game");
        type(w->LevelName_Text, "Level");
        type(w->ModName_Text->lineEdit(), "BF1942");
        QVERIFY(w->close());
        QVERIFY(!app.form->pathsDialog()->isLoaded() && app.form->gamePath.isEmpty());

        app.form->shadowDarkness = 3.25;
        w = &openPaths(app);
        QCOMPARE(texts(*w), "(Current)||||3.25|000");
    }

    void okRefusesEmptyEntriesAndADarknessThatIsNoNumber() {
        TestApp app;
        PathsDialogWindow& w = openPaths(app);
        type(w.GamePath_Text, "C:\\Game");
        type(w.ModName_Text->lineEdit(), "EoD");
        click(w.OKButton);
        QCOMPARE(app.dialogs.boxes[0].prompt, QString("Please complete all entries."));
        QCOMPARE(app.dialogs.boxes[0].buttons, MsgBoxStyle::OkOnly);

        type(w.LevelName_Text, "Level");
        for (const QString darkness : {"dark", "", "1,5"}) {
            type(w.shadow_Text, darkness);
            click(w.OKButton);
            QVERIFY(app.dialogs.boxes.last().prompt.contains("Shadow Darkness must be a number"));
            QVERIFY(app.form->gamePath.isEmpty() && app.form->shadowDarkness == 1.5);
        }
        QVERIFY(app.dialogs.boxes.size() == 4 && w.isVisible());
    }

    // Only the length counts: the last 11 characters go, whatever they are.
    void browseKeepsWhatStandsBeforeTheExeName() {
        TestApp app;
        app.write("config.ini", record("S", "old", "lvl", "mod", "000", "1"));
        PathsDialogWindow& w = openPaths(app);
        choose(w.SavedSettings, 1);
        const std::pair<QString, QString> answers[] = {
            {"D:\\Games\\BF1942\\bf1942.exe", "D:\\Games\\BF1942"},
            {"C:\\bf1942.exe", "C:"},
            {"D:\\Games\\BF1942\\BF1942.EXE", "D:\\Games\\BF1942"},
            {"D:\\Games\\BF1942\\launcher.exe", "D:\\Games\\BF1942\\l"},
            {"\\bf1942.exe", ""},
            {"a.exe", "kept"}, // nothing to cut
            {"", "kept"}};     // cancelled
        for (const auto& [answer, gamePath] : answers) {
            type(w.GamePath_Text, "kept");
            app.dialogs.fileAnswers.enqueue(answer);
            click(w.Path);
            QCOMPARE(answer + " -> " + w.GamePath_Text->text(), answer + " -> " + gamePath);
        }
        for (const FileDialogRequest& asked : app.dialogs.fileRequests) // no InitDir
            QCOMPARE(asked.filter + "|" + asked.fileName + "|" + asked.initDir,
                     "Battlefield 1942|bf1942.exe|bf1942.exe|");
        QCOMPARE(app.dialogs.fileRequests.size(), 7);
        QVERIFY(texts(w).startsWith("S|kept|lvl|"));
        QVERIFY(app.dialogs.boxes.isEmpty() && app.form->gamePath.isEmpty());
    }
};

QTEST_MAIN(PathsDialogLifecycleTest)
#include "paths_dialog_lifecycle_qtest.moc"
