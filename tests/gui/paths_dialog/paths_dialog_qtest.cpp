// The paths dialog through its controls; what its commands do to the values is the core's.
#include <QtTest>

#include "platform/click_check_box.h"
#include "platform/form_timer.h"
#include "support/dialog_driver.h"

using namespace umbrakit;

class PathsDialogTest : public QObject {
    Q_OBJECT
  private slots:
    // Esc is no way out, Enter is OK; access keys; Cancel hides and keeps every entry for the next
    // opening; OK applies them, a Click for each box it changes; the close box applies nothing.
    void keysCancelOkAndTheCloseBox() {
        TestApp app;
        app.write("config.ini", record("Wake", "D:\\BF", "Wake", "BF1942", "110", "2"));
        app.window->passEntries[int(Pass::Terrain)]->trigger();
        PathsDialogWindow& w = openPaths(app);
        QVERIFY(QTest::qWaitForWindowActive(&w));
        QCOMPARE(QApplication::focusWidget(), w.savedList);
        QVERIFY(app.status() == "Ready." && !app.window->statusTimer->Enabled());
        QSignalSpy okPressed(w.okButton, &QPushButton::clicked);
        QTest::keyClick(w.levelBox, Qt::Key_Escape); // no way out
        QVERIFY(w.isVisible() && app.window->pathsDialog()->isLoaded());
        QTest::keyClick(w.levelBox, Qt::Key_Return);
        QTest::keyClick(w.modBox->lineEdit(), Qt::Key_Enter);
        QCOMPARE(okPressed.count(), 2);
        QCOMPARE(app.dialogs.boxes.last().prompt, QString("Please complete all entries."));
        QCOMPARE(w.modBox->ListCount(), 3);              // the typing box's Enter adds no row
        QTest::keyClick(&w, Qt::Key_O, Qt::AltModifier); // not the greyed pass boxes' O and T
        QTRY_COMPARE(okPressed.count(), 3);
        QTest::keyClick(&w, Qt::Key_T, Qt::AltModifier);
        QTest::keyClick(&w, Qt::Key_C, Qt::AltModifier);
        QTRY_VERIFY(!w.isVisible());
        QVERIFY(app.window->pathsDialog()->isLoaded());
        QCOMPARE(texts(openPaths(app)), "(Current)||||1.5|100");

        chooseRow(w.savedList, 1); // terrain and merge
        type(w.levelBox, "Level =1");
        type(w.modBox->lineEdit(), "Not A Listed Mod");
        type(w.darknessBox, " 0.75 ");
        click(w.cancelButton);
        QVERIFY(!w.isVisible() && app.window->configuration().levelName.empty());
        const int operations = app.files.operations;
        QCOMPARE(&openPaths(app), &w); // no new load
        QCOMPARE(app.files.operations, operations);
        QCOMPARE(texts(w), "Wake|D:\\BF|Level =1|Not A Listed Mod| 0.75 |110");

        QSignalSpy terrain(app.window->passBoxes[0], &ClickCheckBox::Click);
        QSignalSpy merge(app.window->passBoxes[1], &ClickCheckBox::Click);
        click(w.okButton);
        QCOMPARE(terrain.count() * 10 + merge.count(), 1);
        const Configuration applied{
            U"D:\\BF", U"Level =1", U"Not A Listed Mod", 0.75, {true, true, false}};
        QCOMPARE(app.window->configuration(), applied);
        QVERIFY(app.window->passEntries[int(Pass::Merge)]->Checked());
        QVERIFY(!app.window->pathsDialog()->isLoaded());
        QCOMPARE(app.dialogs.boxes.size(), 3);

        type(openPaths(app).gamePathBox, "C:\\Game");
        QVERIFY(app.window->pathsDialog()->window()->close());
        QVERIFY(!app.window->pathsDialog()->isLoaded());
        QCOMPARE(texts(openPaths(app)), "(Current)|D:\\BF|Level =1|Not A Listed Mod|0.75|110");
        QCOMPARE(app.window->configuration(), applied);
    }

    // The list and the boxes follow config.ini; what Save and Delete write is the core's.
    void savedSettingsInTheListAndTheBoxes() {
        TestApp app;
        const QByteArray big = record("Big", QByteArray(100000, 'x'), "l", "m", "000", "1");
        const QByteArray saved = kWake + kMidway + kBerlin + big;
        app.write("config.ini", saved);
        app.window->passEntries[int(Pass::Merge)]->trigger();
        PathsDialogWindow& w = openPaths(app);
        QCOMPARE(rowsOf(w.savedList).join(','), "(Current),Wake,Midway,Berlin,Big");
        chooseRow(w.savedList, 4); // whole, past the 32,767 characters of Qt's text boxes
        QCOMPARE(w.gamePathBox->text().size(), 100000);
        click(w.saveButton);
        QCOMPARE(app.bytesOf("config.ini"), saved);
        chooseRow(w.savedList, 2);
        QCOMPARE(texts(w), "Midway|E:\\BF|Midway|DesertCombat|2|011");
        type(w.darknessBox, "2.50");
        type(w.nameBox, "café");
        click(w.saveButton); // a second record, shown as written
        QCOMPARE(rowsOf(w.savedList).last() + texts(w),
                 "cafécafé|E:\\BF|Midway|DesertCombat|2.5|011");
        QVERIFY(app.bytesOf("config.ini").startsWith(saved + "[Save=caf\xE9]"));

        chooseRow(w.savedList, 1);
        click(w.deleteButton); // row 0 shows the main window again, the name stays for a Save
        QCOMPARE(rowsOf(w.savedList).join(','), "(Current),Midway,Berlin,Big,café");
        QCOMPARE(texts(w), "Wake||||1.5|010");
        click(w.deleteButton); // with row 0 nothing goes, and the boxes stay
        QCOMPARE(app.dialogs.boxes.size(), 1);
        QCOMPARE(texts(w), "Wake||||1.5|010");
        app.window->pathsDialog()->unload();
        QCOMPARE(rowsOf(openPaths(app).savedList).size(), 5);
    }

    // Only the length counts: the last 11 characters go, whatever they are.
    void browseKeepsWhatStandsBeforeTheExeName() {
        TestApp app;
        PathsDialogWindow& w = openPaths(app);
        QStringList shown;
        for (const char* answer :
             {"D:\\Games\\BF1942\\launcher.exe", "\\bf1942.exe", "a.exe", ""}) {
            type(w.gamePathBox, "kept");
            app.dialogs.fileAnswers << answer;
            click(w.browseButton);
            shown << w.gamePathBox->text();
        }
        QCOMPARE(shown, QStringList({"D:\\Games\\BF1942\\l", "", "kept", "kept"}));
        const FileDialogRequest asked = app.dialogs.fileRequests.constLast();
        QCOMPARE(asked.filter + "|" + asked.fileName + "|" + asked.initDir,
                 "Battlefield 1942|bf1942.exe|bf1942.exe|");
    }
};

QTEST_MAIN(PathsDialogTest)
#include "paths_dialog_qtest.moc"
