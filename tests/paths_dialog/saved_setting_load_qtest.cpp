// A row of SavedSettings reaching the dialog's controls and its own Booleans.
#include "paths_dialog/dialog_driver.h"

using namespace umbrakit;

class SavedSettingLoadTest : public QObject {
    Q_OBJECT
  private slots:
    void aSavedRowFillsTheDialogAndRowZeroBringsBackForm1();
    void namesAreFoundExactlyAndTheFirstOfTwoEqualHeadsCounts();
    void valuesOfTheWrongKindLoadWithoutLosingTheRecord();
};

void SavedSettingLoadTest::aSavedRowFillsTheDialogAndRowZeroBringsBackForm1() {
    TestApp app;
    app.write("config.ini", record("Wake", "D:\\Saved\\BF", "Wake=Island", "EoD", "101", "2.50"));
    app.form->menuRunMerge->trigger();
    PathsDialogWindow& w = openPaths(app);
    PathsDialog& dialog = *app.form->pathsDialog();
    QCOMPARE(rowsOf(w.SavedSettings).size(), 2); // the "Save" in the game path adds no row
    choose(w.SavedSettings, 1);
    QCOMPARE(QStringList({w.SettingName_Text->text(), w.GamePath_Text->text(),
                          w.LevelName_Text->text(), w.ModName_Text->Text(), w.shadow_Text->text()}),
             QStringList({"Wake", "D:\\Saved\\BF", "Wake=Island", "EoD", "2.5"}));
    QCOMPARE(dialog.shadowDarkness, 2.5);
    QVERIFY(dialog.terrainBoolean == -1 && dialog.mergeBoolean == 0 && dialog.objectBoolean == -1);
    QCOMPARE(boxesOn(w), 5);
    QCOMPARE(app.form->levelName, QString()); // only OK applies

    choose(w.SavedSettings, 0);
    QCOMPARE(w.SettingName_Text->text() + w.GamePath_Text->text() + w.shadow_Text->text(),
             "Wake1.5"); // the name stays for a Save
    QVERIFY(dialog.terrainBoolean == 0 && dialog.mergeBoolean == -1 && dialog.objectBoolean == 0);
    QCOMPARE(boxesOn(w), 2); // the boxes follow the Booleans at row 0 too
}

void SavedSettingLoadTest::namesAreFoundExactlyAndTheFirstOfTwoEqualHeadsCounts() {
    TestApp app;
    app.write("config.ini", record("Twin", "first", "l", "m", "100", "1") +
                                record("twin", "other", "l", "m", "000", "1") +
                                record("Twin", "second", "l", "m", "011", "2"));
    PathsDialogWindow& w = openPaths(app);
    const PathsDialog& dialog = *app.form->pathsDialog();
    QCOMPARE(dialog.FindSavedName("Twin"), 3); // the last match
    QCOMPARE(dialog.FindSavedName("twin"), 2);
    QCOMPARE(dialog.FindSavedName("TWIN"), -1);
    QCOMPARE(dialog.FindSavedName("(Current)"), 0);
    QCOMPARE(dialog.FindSavedName("(current)"), -1);
    choose(w.SavedSettings, 3);
    QCOMPARE(w.GamePath_Text->text(), QString("first"));
    QCOMPARE(boxesOn(w), 4);
}

void SavedSettingLoadTest::valuesOfTheWrongKindLoadWithoutLosingTheRecord() {
    TestApp app;
    const QByteArray odd = "[Save=Odd]\r\ngamePath=g\r\nlevelName=l\r\nmodName=m\r\n"
                           "terrainBoolean=Yes\r\nmergeBoolean=-1\r\nobjectBoolean=\r\n"
                           "shadowDarkness=dark\r\n";
    app.write("config.ini", odd);
    app.form->menuRunObject->trigger();
    PathsDialogWindow& w = openPaths(app);
    PathsDialog& dialog = *app.form->pathsDialog();
    choose(w.SavedSettings, 1);
    // "Yes" and the empty word leave their Booleans as they were.
    QVERIFY(dialog.terrainBoolean == 0 && dialog.mergeBoolean == -1 && dialog.objectBoolean == -1);
    QCOMPARE(boxesOn(w), 3);
    QCOMPARE(w.shadow_Text->text(), QString("dark")); // shown as saved
    QCOMPARE(dialog.shadowDarkness, 0.0);

    click(w.OKButton); // refused: the darkness is no number
    QVERIFY(dialog.isLoaded() && app.form->gamePath.isEmpty());
    saveAs(w, "Other");
    QVERIFY(app.bytesOf("config.ini").startsWith(odd));

    app.files.failAt = app.files.operations + 1; // a file that cannot be read is told
    choose(w.SavedSettings, 0);
    choose(w.SavedSettings, 1);
    QVERIFY(app.dialogs.boxes.last().prompt.contains("Injected failure."));
    QCOMPARE(w.GamePath_Text->text(), QString());
}

QTEST_MAIN(SavedSettingLoadTest)
#include "saved_setting_load_qtest.moc"
