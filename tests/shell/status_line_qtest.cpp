// The status line and its timer, and the two ways the program ends.
#include <QCloseEvent>
#include <QtTest>

#include "platform/form_timer.h"
#include "platform/menu_entry.h"
#include "support/test_app.h"

using namespace umbrakit;

class StatusLineTest : public QObject {
    Q_OBJECT
  private slots:
    void aTimedTextReturnsToReadyOnce() {
        TestApp app;
        QCOMPARE(app.status(), QString("Ready."));
        QVERIFY(!app.form->Timer1->Enabled());
        QCOMPARE(app.form->Timer1->Interval(), 7500);

        app.dialogs.fileAnswers.enqueue(app.path("lmList.dat"));
        app.form->lmList_Button_Click();
        QCOMPARE(app.status(), QString("Saved!"));
        app.form->Timer1->elapseNow();
        QCOMPARE(app.status(), QString("Ready."));
        QVERIFY(!app.form->Timer1->Enabled());
    }

    void aSecondTimedTextDoesNotRestartTheCountdown() {
        TestApp app;
        app.form->Timer1->setInterval(1000);
        app.form->lmList_Button_Click(); // cancelled: "Save Cancled." starts the timer
        QTest::qWait(600);
        app.dialogs.fileAnswers.enqueue(app.path("lmList.dat"));
        app.form->lmList_Button_Click();
        QCOMPARE(app.status(), QString("Saved!"));
        const int remaining = app.form->Timer1->remainingMs();
        QVERIFY2(remaining > 0 && remaining <= 450, qPrintable(QString::number(remaining)));
        QTRY_COMPARE_WITH_TIMEOUT(app.status(), QString("Ready."), 2000);
        QVERIFY(!app.form->Timer1->Enabled());
    }

    void aNewExportDuringACountdownGetsItsOwnOutcome() {
        TestApp app;
        app.form->lmList_Button_Click(); // "Save Cancled.", timer running
        app.write("lmList.dat", "old");
        app.dialogs.fileAnswers.enqueue(app.path("lmList.dat")); // then "No" to overwriting
        app.form->lmList_Button_Click();
        QCOMPARE(app.status(), QString("Preparing to Save..."));
        app.form->Timer1->elapseNow(); // the earlier countdown clears the waiting text
        QCOMPARE(app.status(), QString("Ready."));
        QVERIFY(!app.form->Timer1->Enabled());
    }

    void exitAndClosingTheWindowEndTheProgram() {
        TestApp app;
        app.form->menuFileExit->trigger();
        QCOMPARE(app.endCalls, 1);
        app.form->menuAbout->trigger(); // another window open changes nothing
        app.form->close();
        QCOMPARE(app.endCalls, 2);
    }
};

QTEST_MAIN(StatusLineTest)
#include "status_line_qtest.moc"
