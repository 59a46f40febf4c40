// A level builder's whole evening, through the program's own controls: set the paths, keep
// named settings, restart the program, load one and run the lighting with it.
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

#include "gui/paths_dialog/paths_dialog.h"
#include "platform/click_check_box.h"
#include "platform/combo_list.h"
#include "platform/menu_entry.h"
#include "support/test_app.h"

using namespace umbrakit;

namespace {
PathsDialogWindow& openPaths(TestApp& app) {
    app.form->menuFilePaths->trigger();
    return *app.form->pathsDialog()->window();
}

void typeInto(QLineEdit* box, const QString& text) {
    box->selectAll();
    QTest::keyClicks(box, text);
}

void saveAs(PathsDialogWindow& w, const QString& name) {
    typeInto(w.SettingName_Text, name);
    QTest::mouseClick(w.Save, Qt::LeftButton);
}

QByteArray record(const char* name, const char* level, const char* darkness) {
    return QByteArray("[Save=") + name + "]\r\ngamePath=D:\\Games\\BF1942\r\nlevelName=" + level +
           "\r\nmodName=BF1942\r\nterrainBoolean=True\r\nmergeBoolean=False\r\n"
           "objectBoolean=True\r\nshadowDarkness=" +
           darkness + "\r\n";
}
} // namespace

class UserJourneyTest : public QObject {
    Q_OBJECT
  private slots:
    void setSaveReplaceDeleteRestartLoadAndRun() {
        TestApp app;
        QTest::mouseClick(app.form->TerrainCheck, Qt::LeftButton, {}, QPoint(5, 7));
        app.form->menuRunObject->trigger();

        PathsDialogWindow& w = openPaths(app);
        app.dialogs.fileAnswers.enqueue("D:\\Games\\BF1942\\bf1942.exe");
        QTest::mouseClick(w.Path, Qt::LeftButton);
        QCOMPARE(w.GamePath_Text->text(), QString("D:\\Games\\BF1942"));
        typeInto(w.LevelName_Text, "MyLevel");
        typeInto(w.ModName_Text->lineEdit(), "BF1942");
        typeInto(w.shadow_Text, "1.50");
        saveAs(w, "first");
        QCOMPARE(app.bytesOf("config.ini"), record("first", "MyLevel", "1.50"));
        QCOMPARE(w.shadow_Text->text(), QString("1.5")); // shown as the record reads back
        typeInto(w.LevelName_Text, "Other");
        saveAs(w, "second");
        typeInto(w.LevelName_Text, "MyLevel");
        typeInto(w.shadow_Text, "2");
        saveAs(w, "first"); // replaces: the record moves last
        QCOMPARE(app.bytesOf("config.ini"),
                 record("second", "Other", "1.5") + record("first", "MyLevel", "2"));
        w.SavedSettings->setListIndex(1); // "second"
        QTest::mouseClick(w.Delete, Qt::LeftButton);
        QCOMPARE(app.bytesOf("config.ini"), record("first", "MyLevel", "2"));
        QVERIFY(app.dialogs.boxes.isEmpty());

        // Restart: nothing of the evening is remembered but config.ini.
        app.form.reset();
        app.form = Form1::start(app.services);
        QCOMPARE(app.form->shadowDarkness, 1.5);
        PathsDialogWindow& again = openPaths(app);
        QCOMPARE(again.SavedSettings->ListCount(), 2);
        again.SavedSettings->setListIndex(1);
        QCOMPARE(again.LevelName_Text->text(), QString("MyLevel"));
        QTest::mouseClick(again.OKButton, Qt::LeftButton);
        QVERIFY(!app.form->pathsDialog()->isLoaded());
        QVERIFY(app.form->TerrainCheck->isChecked() && app.form->ObjectCheck->isChecked());
        QVERIFY(app.form->menuRunTerrain->Checked() && !app.form->menuRunMerge->Checked());
        QCOMPARE(app.form->objectBoolean, qint16(-1));

        QTest::mouseClick(app.form->Go_Button, Qt::LeftButton);
        QCOMPARE(app.launcher.started, QStringList{app.path("go.bat")});
        const QByteArray script = app.bytesOf("go.bat");
        QVERIFY(
            script.startsWith("@cd D:\\Games\\BF1942\r\n@D:\r\n\"D:\\Games\\BF1942\\BF1942.exe\""));
        QVERIFY(script.contains(" +traceTerrainShadows "));
        QVERIFY(!script.contains(" +mergeTerrainShadows "));
        QVERIFY(script.endsWith(" +traceObjectShadows \"bf1942\\levels\\MyLevel\\\"\r\n"));
        QCOMPARE(app.status(), QString("Running batch lighting... You may exit."));
    }
};

QTEST_MAIN(UserJourneyTest)
#include "user_journey_qtest.moc"
