// Opening, Cancel, OK and the close box of the paths dialog, and the game folder browse.
#include <QSignalSpy>

#include "paths_dialog/dialog_driver.h"
#include "platform/form_timer.h"

using namespace umbrakit;

class PathsDialogLifecycleTest : public QObject {
    Q_OBJECT
  private slots:
    void cancelKeepsEverythingForTheNextOpeningAndOkAppliesIt();
    void closeBoxUnloadsAndAppliesNothing();
    void okRefusesEmptyEntriesAndADarknessThatIsNoNumber();
    void browseKeepsWhatStandsBeforeTheExeName_data();
    void browseKeepsWhatStandsBeforeTheExeName();
};

void PathsDialogLifecycleTest::cancelKeepsEverythingForTheNextOpeningAndOkAppliesIt() {
    TestApp app;
    app.write("config.ini", record("Wake", "D:\\BF", "Wake", "BF1942", "110", "2"));
    app.form->menuRunTerrain->trigger();
    PathsDialogWindow& w = openPaths(app);
    QVERIFY(app.status() == "Ready." && !app.form->Timer1->Enabled());
    QCOMPARE(w.shadow_Text->text() + w.GamePath_Text->text() + w.ModName_Text->Text(), "1.5");
    QCOMPARE(boxesOn(w), 4);
    QCOMPARE(w.SettingName_Text->text(), QString("(Current)"));
    choose(w.SavedSettings, 1); // terrain and merge
    type(w.LevelName_Text, "Level =1");
    type(w.ModName_Text, "Not A Listed Mod");
    type(w.shadow_Text, " 0.75 ");
    click(w.CancelButton);
    QVERIFY(!w.isVisible() && app.form->levelName.isEmpty());

    app.form->menuRunMerge->trigger(); // seen neither by the hidden dialog nor by a new opening
    const int operations = app.files.operations;
    QCOMPARE(&openPaths(app), &w);
    QCOMPARE(app.files.operations, operations); // no new load
    QCOMPARE(w.SavedSettings->ListIndex(), 1);
    QCOMPARE(w.SettingName_Text->text() + w.LevelName_Text->text(), "WakeLevel =1");
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

void PathsDialogLifecycleTest::closeBoxUnloadsAndAppliesNothing() {
    TestApp app;
    PathsDialogWindow* w = &openPaths(app);
    type(w->GamePath_Text, "C:\\Game");
    type(w->LevelName_Text, "Level");
    type(w->ModName_Text, "BF1942");
    QVERIFY(w->close());
    QVERIFY(!app.form->pathsDialog()->isLoaded());
    QCOMPARE(app.form->gamePath, QString());

    app.form->shadowDarkness = 3.25;
    w = &openPaths(app);
    QCOMPARE(w->GamePath_Text->text() + w->shadow_Text->text(), "3.25");
    QCOMPARE(w->ModName_Text->ListCount(), 3);
}

void PathsDialogLifecycleTest::okRefusesEmptyEntriesAndADarknessThatIsNoNumber() {
    TestApp app;
    PathsDialogWindow& w = openPaths(app);
    type(w.GamePath_Text, "C:\\Game");
    type(w.ModName_Text, "EoD");
    click(w.OKButton);
    QCOMPARE(app.dialogs.boxes[0].prompt, QString("Please complete all entries."));
    QCOMPARE(app.dialogs.boxes[0].buttons, MsgBoxStyle::OkOnly);

    type(w.LevelName_Text, "Level");
    for (const QString darkness : {"dark", "", "1,5"}) {
        type(w.shadow_Text, darkness);
        click(w.OKButton);
        QVERIFY(app.dialogs.boxes.last().prompt.contains("Shadow Darkness must be a number"));
        QVERIFY(app.form->gamePath.isEmpty() && app.form->shadowDarkness == 1.5 && w.isVisible());
    }
    QCOMPARE(app.dialogs.boxes.size(), 4);
}

void PathsDialogLifecycleTest::browseKeepsWhatStandsBeforeTheExeName_data() {
    QTest::addColumn<QString>("answer");
    QTest::addColumn<QString>("gamePath");
    QTest::newRow("ordinary") << "D:\\Games\\BF1942\\bf1942.exe"
                              << "D:\\Games\\BF1942";
    QTest::newRow("drive root") << "C:\\bf1942.exe"
                                << "C:";
    QTest::newRow("capitals") << "D:\\Games\\BF1942\\BF1942.EXE"
                              << "D:\\Games\\BF1942";
    QTest::newRow("other name") << "D:\\Games\\BF1942\\launcher.exe"
                                << "D:\\Games\\BF1942\\l";
    QTest::newRow("eleven characters") << "\\bf1942.exe"
                                       << "";
    QTest::newRow("too short") << "a.exe"
                               << "kept";
    QTest::newRow("cancelled") << ""
                               << "kept";
}

void PathsDialogLifecycleTest::browseKeepsWhatStandsBeforeTheExeName() {
    QFETCH(QString, answer);
    QFETCH(QString, gamePath);
    TestApp app;
    app.write("config.ini", record("S", "old", "lvl", "mod", "000", "1"));
    PathsDialogWindow& w = openPaths(app);
    choose(w.SavedSettings, 1);
    type(w.GamePath_Text, "kept");
    app.dialogs.fileAnswers.enqueue(answer);
    click(w.Path);
    const FileDialogRequest& asked = app.dialogs.fileRequests.at(0);
    QCOMPARE(asked.filter + "|" + asked.fileName + "|" + asked.initDir,
             "Battlefield 1942|bf1942.exe|bf1942.exe|");
    QCOMPARE(w.GamePath_Text->text(), gamePath);
    QCOMPARE(w.LevelName_Text->text() + w.SettingName_Text->text(), "lvlS");
    QVERIFY(app.dialogs.boxes.isEmpty() && app.form->gamePath.isEmpty());
}

QTEST_MAIN(PathsDialogLifecycleTest)
#include "paths_dialog_lifecycle_qtest.moc"
