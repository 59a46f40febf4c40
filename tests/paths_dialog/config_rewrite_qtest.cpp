// Save and Delete through the rewrite of config.ini: what the file holds afterwards, what the
// list shows, and that a list the load could not read loses no record. Each failing file
// operation of Save and Delete in turn is swept in tests/reliability/fault_sweep_qtest.cpp.
#include <QFile>

#include "paths_dialog/dialog_driver.h"

using namespace umbrakit;

namespace {
const QByteArray kWake = record("Wake", "D:\\Saved Games\\BF1942", "Wake", "BF1942", "100", "1.5");
const QByteArray kMidway = record("Midway", "E:\\BF", "Midway", "DesertCombat", "011", "2");
const QByteArray kBerlin = record("Berlin", "F:\\BF", "Berlin", "EoD", "000", "0.5");

QByteArray numbered(int first, int last) {
    QByteArray records;
    for (int i = first; i <= last; ++i)
        records += record("N" + QByteArray::number(i), "g", "l", "m", "000", "1");
    return records;
}

// The names that the file holds, as a new load of the dialog lists them.
QStringList listedAfterReload(TestApp& app) {
    app.form->pathsDialog()->Unload();
    return rowsOf(openPaths(app).SavedSettings);
}
} // namespace

class ConfigRewriteTest : public QObject {
    Q_OBJECT
  private slots:
    void savesCreateReplaceAndKeepAwkwardTextWhole();
    void deleteTakesOnlyTheSelectedRecord();
    void refusalsChangeNothingAndAFullListLosesNoRecord();
    void aListThatCouldNotBeReadIsReadBeforeARewrite();
};

void ConfigRewriteTest::savesCreateReplaceAndKeepAwkwardTextWhole() {
    TestApp app;
    PathsDialogWindow& w = openPaths(app);
    type(w.GamePath_Text, "D:\\Saved Games");
    type(w.LevelName_Text, "lvl = x");
    type(w.ModName_Text, "mod ]=");
    type(w.shadow_Text, "1.50");
    saveAs(w, "First");
    QCOMPARE(app.bytesOf("config.ini"),
             record("First", "D:\\Saved Games", "lvl = x", "mod ]=", "000", "1.50"));
    QVERIFY(!QFile::exists(app.path("config.tmp")));
    QCOMPARE(w.SavedSettings->ListIndex(), 1); // the new row, showing the saved record
    QCOMPARE(w.shadow_Text->text(), QString("1.5"));

    const QStringList names{"a=b", "x]y", " sp ace ", "(current)", "Save", "café"};
    for (const QString& name : names) {
        type(w.LevelName_Text, "lvl=" + name);
        saveAs(w, name);
    }
    QVERIFY(app.bytesOf("config.ini").contains("[Save=caf\xE9]\r\n")); // one byte a character
    QCOMPARE(listedAfterReload(app), QStringList({"(Current)", "First"}) + names);
    PathsDialogWindow& again = *app.form->pathsDialog()->window();
    for (int row = 2; row <= names.size() + 1; ++row) {
        choose(again.SavedSettings, row);
        QCOMPARE(again.SettingName_Text->text(), names[row - 2]);
        QCOMPARE(again.LevelName_Text->text(), "lvl=" + names[row - 2]);
        QCOMPARE(again.GamePath_Text->text() + again.ModName_Text->Text(), "D:\\Saved Gamesmod ]=");
    }

    // Replacing moves the record last and keeps the others in order; a new name beside a
    // selected record makes a second record.
    choose(again.SavedSettings, 1);
    type(again.LevelName_Text, "new");
    click(again.Save);
    saveAs(again, "First copy");
    QCOMPARE(rowsOf(again.SavedSettings),
             QStringList{"(Current)"} + names + QStringList({"First", "First copy"}));
    QVERIFY(app.bytesOf("config.ini")
                .endsWith(record("First", "D:\\Saved Games", "new", "mod ]=", "000", "1.5") +
                          record("First copy", "D:\\Saved Games", "new", "mod ]=", "000", "1.5")));
    QVERIFY(app.dialogs.boxes.isEmpty() && app.form->gamePath.isEmpty());
}

void ConfigRewriteTest::deleteTakesOnlyTheSelectedRecord() {
    TestApp app;
    app.write("config.ini", kWake + kMidway + kBerlin);
    PathsDialogWindow& w = openPaths(app);
    choose(w.SavedSettings, 2);
    type(w.SettingName_Text, "Berlin"); // another listed name typed in: its record stays
    click(w.Delete);
    QCOMPARE(app.bytesOf("config.ini"), kWake + kBerlin);
    QCOMPARE(rowsOf(w.SavedSettings), QStringList({"(Current)", "Wake", "Berlin"}));
    QCOMPARE(w.SavedSettings->ListIndex(), 0);
    QCOMPARE(w.SettingName_Text->text() + w.GamePath_Text->text(), "Midway");

    click(w.Delete); // row 0: nothing goes, "(Current)" stays first
    QCOMPARE(app.dialogs.boxes.size(), 1);
    QCOMPARE(rowsOf(w.SavedSettings).first(), QString("(Current)"));
    for (int i = 0; i < 2; ++i) {
        choose(w.SavedSettings, 1);
        click(w.Delete);
    }
    QVERIFY(QFile::exists(app.path("config.ini")));
    QCOMPARE(app.bytesOf("config.ini"), QByteArray()); // 0 bytes, not gone
    QCOMPARE(rowsOf(w.SavedSettings), QStringList{"(Current)"});
}

void ConfigRewriteTest::refusalsChangeNothingAndAFullListLosesNoRecord() {
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
    QCOMPARE(told, QStringList({"Please give the Config a name.", "Please give the Config a name.",
                                "The Setting Name holds the cha", "There is room for 30 saved Con",
                                "The Level Name holds the chara"}));
    QCOMPARE(app.bytesOf("config.ini"), numbered(1, 30));

    choose(w.SavedSettings, 30); // the last row can be replaced too
    type(w.LevelName_Text, "x");
    click(w.Save);
    QCOMPARE(app.bytesOf("config.ini"), numbered(1, 29) + record("N30", "g", "x", "m", "000", "1"));
    QCOMPARE(app.dialogs.boxes.size(), 5);

    app.write("config.ini", numbered(1, 32)); // more than the table holds
    QCOMPARE(listedAfterReload(app).size(), 31);
    PathsDialogWindow& again = *app.form->pathsDialog()->window();
    choose(again.SavedSettings, 1);
    click(again.Delete);
    QCOMPARE(app.bytesOf("config.ini"), numbered(2, 32));
}

void ConfigRewriteTest::aListThatCouldNotBeReadIsReadBeforeARewrite() {
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

QTEST_MAIN(ConfigRewriteTest)
#include "config_rewrite_qtest.moc"
