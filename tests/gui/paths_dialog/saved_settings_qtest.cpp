// The saved settings through the dialog: a row loaded into the controls, Save and Delete seen in
// config.ini and in the list. Failing file operations are swept in tests/reliability.
#include <QFile>

#include "support/dialog_driver.h"

using namespace umbrakit;

class SavedSettingsTest : public QObject {
    Q_OBJECT
  private slots:
    void aRowFillsTheDialogOnlyAndRowZeroBringsBackForm1() {
        TestApp app;
        app.write("config.ini",
                  record("Wake", "D:\\BF", "Wake=Island", "EoD", "101", "2.50") +
                      "[Save=wake]\r\ngamePath=g\r\nlevelName=l\r\nmodName=m\r\nterrainBoolean=\r\n"
                      "mergeBoolean=Yes\r\nobjectBoolean=False\r\nshadowDarkness=dark\r\n");
        app.form->menuRunMerge->trigger();
        PathsDialogWindow& w = openPaths(app);
        PathsDialog& dialog = *app.form->pathsDialog();
        QCOMPARE(dialog.FindSavedName("wake"), 2); // names are found exactly
        QCOMPARE(dialog.FindSavedName("WAKE"), -1);

        choose(w.SavedSettings, 1);
        QCOMPARE(texts(w), "Wake|D:\\BF|Wake=Island|EoD|2.5|101");
        QVERIFY(dialog.terrainBoolean == -1 && dialog.mergeBoolean == 0 && dialog.objectBoolean);
        // A Boolean that is none leaves its field; a darkness that is no number shows as saved.
        choose(w.SavedSettings, 2);
        QCOMPARE(texts(w), "wake|g|l|m|dark|100");
        QVERIFY(dialog.terrainBoolean == -1 && dialog.mergeBoolean == 0 && !dialog.objectBoolean);
        QVERIFY(app.form->levelName.isEmpty()); // only OK applies

        choose(w.SavedSettings, 0); // the name stays for a Save
        QCOMPARE(texts(w), "wake||||1.5|010");
        QVERIFY(dialog.terrainBoolean == 0 && dialog.mergeBoolean == -1 && !dialog.objectBoolean);

        app.files.failAt = app.files.operations + 1; // a file that cannot be read is told
        choose(w.SavedSettings, 1);
        QVERIFY(app.dialogs.boxes.last().prompt.contains("Injected failure."));
        QCOMPARE(texts(w), "wake||||1.5|010");
    }

    void savesCreateReplaceAndStoreOneByteACharacter() {
        TestApp app;
        PathsDialogWindow& w = openPaths(app);
        type(w.GamePath_Text, "D:\\BF");
        type(w.LevelName_Text, "lvl");
        type(w.ModName_Text->lineEdit(), "mod");
        type(w.shadow_Text, "1.50");
        saveAs(w, "First");
        QCOMPARE(app.bytesOf("config.ini"), record("First", "D:\\BF", "lvl", "mod", "000", "1.50"));
        QCOMPARE(w.SavedSettings->ListIndex(), 1); // the new row, showing the record read back
        QCOMPARE(w.shadow_Text->text(), QString("1.5"));

        saveAs(w, "(current)"); // only "(Current)" itself is refused
        saveAs(w, "café");
        choose(w.SavedSettings, 1);
        type(w.LevelName_Text, "new");
        click(w.Save);     // replacing moves the record last and keeps the others in order
        saveAs(w, "Copy"); // a new name beside a selected record is a second record
        const auto saved = [](const QByteArray& name, const QByteArray& level) {
            return record(name, "D:\\BF", level, "mod", "000", "1.5");
        };
        QCOMPARE(app.bytesOf("config.ini"), saved("(current)", "lvl") + saved("caf\xE9", "lvl") +
                                                saved("First", "new") + saved("Copy", "new"));
        const QStringList rows{"(Current)", "(current)", "café", "First", "Copy"};
        QCOMPARE(rowsOf(w.SavedSettings), rows);
        QCOMPARE(rowsOf(reopenPaths(app).SavedSettings), rows);
        QVERIFY(app.dialogs.boxes.isEmpty() && app.form->gamePath.isEmpty());
    }

    void deleteTakesOnlyTheSelectedRecord() {
        TestApp app;
        app.write("config.ini", kWake + kMidway + kBerlin);
        PathsDialogWindow& w = openPaths(app);
        choose(w.SavedSettings, 2);
        type(w.SettingName_Text, "Berlin"); // another listed name typed in: its record stays
        click(w.Delete);
        QCOMPARE(app.bytesOf("config.ini"), kWake + kBerlin);
        QCOMPARE(rowsOf(w.SavedSettings), QStringList({"(Current)", "Wake", "Berlin"}));
        QCOMPARE(w.SavedSettings->ListIndex(), 0);
        QCOMPARE(texts(w), "Midway||||1.5|000"); // Form1's values, the name kept for a Save

        click(w.Delete); // row 0
        QCOMPARE(app.dialogs.boxes.size(), 1);
        QCOMPARE(rowsOf(w.SavedSettings).size(), 3);
        for (int i = 0; i < 2; ++i) {
            choose(w.SavedSettings, 1);
            click(w.Delete);
        }
        QVERIFY(QFile::exists(app.path("config.ini")));
        QCOMPARE(app.bytesOf("config.ini"), QByteArray()); // 0 bytes, not gone
        QCOMPARE(rowsOf(w.SavedSettings), QStringList{"(Current)"});
        QCOMPARE(reopenPaths(app).SavedSettings->ListCount(), 1); // no name of an earlier load
    }

    void refusalsChangeNothingAndAFullListLosesNoRecord() {
        TestApp app;
        app.write("config.ini", numbered(1, 30));
        PathsDialogWindow& w = openPaths(app);
        for (const QString name : {"", "(Current)", "Ω", "N31"})
            saveAs(w, name);
        type(w.LevelName_Text, "✓");
        saveAs(w, "N1");
        QStringList told;
        for (const AskedBox& box : app.dialogs.boxes)
            told << box.prompt.left(30);
        QCOMPARE(told,
                 QStringList({"Please give the Config a name.", "Please give the Config a name.",
                              "The Setting Name holds the cha", "There is room for 30 saved Con",
                              "The Level Name holds the chara"}));
        QCOMPARE(app.bytesOf("config.ini"), numbered(1, 30));

        choose(w.SavedSettings, 30); // the last row can be replaced too
        type(w.LevelName_Text, "x");
        click(w.Save);
        QCOMPARE(app.bytesOf("config.ini"),
                 numbered(1, 29) + record("N30", "g", "x", "m", "000", "1"));

        app.write("config.ini", numbered(1, 32)); // more than the list holds
        PathsDialogWindow& again = reopenPaths(app);
        QCOMPARE(again.SavedSettings->ListCount(), 31);
        choose(again.SavedSettings, 1);
        click(again.Delete);
        QCOMPARE(app.bytesOf("config.ini"), numbered(2, 32));
        QCOMPARE(app.dialogs.boxes.size(), 5);
    }

    // A list that the load could not read is read before a rewrite, or records would go.
    void aListThatCouldNotBeReadIsReadBeforeARewrite() {
        TestApp app;
        app.write("config.ini", kWake + kMidway);
        app.files.failAt = 1;
        PathsDialogWindow& w = openPaths(app);
        QVERIFY(app.dialogs.boxes.at(0).prompt.contains(app.path("config.ini")));
        QCOMPARE(rowsOf(w.SavedSettings), QStringList{"(Current)"});
        saveAs(w, "New");
        QCOMPARE(rowsOf(w.SavedSettings), QStringList({"(Current)", "Wake", "Midway", "New"}));
        QVERIFY(app.bytesOf("config.ini").startsWith(kWake + kMidway));
    }
};

QTEST_MAIN(SavedSettingsTest)
#include "saved_settings_qtest.moc"
