// The status line and its timer, and the two ways the program ends.
#include <QtTest>

#include "platform/form_timer.h"
#include "support/elapse_timer.h"
#include "platform/menu_entry.h"
#include "support/test_app.h"

using namespace umbrakit;

class StatusLineTest : public QObject {
    Q_OBJECT
  private slots:
    // A second text during the countdown does not start it again.
    void aTimedTextReturnsToReadyOnce() {
        TestApp app;
        QVERIFY(!app.form->Timer1->Enabled());
        QCOMPARE(app.form->Timer1->Interval(), 7500);
        app.form->Timer1->setInterval(2000);
        app.form->lmList_Button_Click(); // cancelled: "Save Cancled."
        QTest::qWait(500);
        app.dialogs.fileAnswers.enqueue(app.path("lmList.dat"));
        app.form->lmList_Button_Click();
        QCOMPARE(app.status(), QString("Saved!"));
        const int remaining = app.form->Timer1->remainingMs();
        QVERIFY2(remaining > 0 && remaining <= 1750, qPrintable(QString::number(remaining)));
        elapseNow(*app.form->Timer1);
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
