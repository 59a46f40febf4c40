// A level builder's whole evening, through the program's own controls: set the paths, keep
// named settings, restart the program, load one and run the lighting with it.
#include <QtTest>

#include "platform/click_check_box.h"
#include "support/dialog_driver.h"

using namespace umbrakit;

class UserJourneyTest : public QObject {
    Q_OBJECT
  private slots:
    void setSaveReplaceDeleteRestartLoadAndRun() {
        TestApp app;
        clickBox(app.window->passBoxes[int(Pass::Terrain)]);
        app.window->passEntries[int(Pass::Object)]->trigger();

        PathsDialogWindow& w = openPaths(app);
        app.dialogs.fileAnswers.enqueue("D:\\Games\\BF1942\\bf1942.exe");
        click(w.browseButton);
        type(w.levelBox, "MyLevel");
        type(w.modBox->lineEdit(), "BF1942");
        type(w.darknessBox, "1.50");
        saveAs(w, "first");
        QCOMPARE(app.bytesOf("config.ini"),
                 record("first", "D:\\Games\\BF1942", "MyLevel", "BF1942", "101", "1.50"));
        type(w.levelBox, "Other");
        saveAs(w, "second");
        type(w.levelBox, "MyLevel");
        type(w.darknessBox, "2");
        saveAs(w, "first");        // replaces: the record moves last
        chooseRow(w.savedList, 1); // "second"
        click(w.deleteButton);
        QCOMPARE(app.bytesOf("config.ini"),
                 record("first", "D:\\Games\\BF1942", "MyLevel", "BF1942", "101", "2"));
        QVERIFY(app.dialogs.boxes.isEmpty());

        // Restart: nothing of the evening is remembered but config.ini.
        app.window.reset();
        app.window = MainWindow::start(app.services);
        QCOMPARE(app.window->configuration(), (Configuration{{}, {}, {}, 1.5, {}}));
        PathsDialogWindow& again = openPaths(app);
        chooseRow(again.savedList, 1);
        click(again.okButton);
        QVERIFY(!app.window->pathsDialog()->isLoaded());
        QCOMPARE(
            app.window->configuration(),
            (Configuration{U"D:\\Games\\BF1942", U"MyLevel", U"BF1942", 2, {true, false, true}}));
        QVERIFY(app.window->passEntries[int(Pass::Object)]->Checked());

        QTest::mouseClick(app.window->runLightingButton, Qt::LeftButton);
        QCOMPARE(app.launcher.started, QStringList{app.path("go.bat")});
        const QByteArray script = app.bytesOf("go.bat");
        QVERIFY(
            script.startsWith("@cd D:\\Games\\BF1942\r\n@D:\r\n\"D:\\Games\\BF1942\\BF1942.exe\""));
        QVERIFY(script.contains(" +traceTerrainShadows ") && !script.contains(" +merge"));
        QVERIFY(script.endsWith(" +traceObjectShadows \"bf1942\\levels\\MyLevel\\\"\r\n"));
        QCOMPARE(app.status(), QString("Running batch lighting... You may exit."));
    }
};

QTEST_MAIN(UserJourneyTest)
#include "user_journey_qtest.moc"
