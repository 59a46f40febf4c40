// What a screen reader is told of the status line: an outcome comes as a notification that is
// shown for an instant, once the line's window is active, and the line looks as before.
#include <QAccessible>
#include <QLabel>
#include <QMainWindow>
#include <QtTest>

#include "platform/spoken_notice.h"
#include "platform/status_bar.h"

using namespace umbrakit;

namespace {
// Counts the showings of a widget, which are what Orca speaks a notification on.
struct Showings : QObject {
    int count = 0;
    bool eventFilter(QObject*, QEvent* event) override {
        count += event->type() == QEvent::Show;
        return false;
    }
};
} // namespace

class StatusLineTest : public QObject {
    Q_OBJECT
  private slots:
    void anOutcomeIsNotifiedOnceItsWindowIsActive() {
        QMainWindow window;
        auto* line = new StatusBar(&window);
        window.setStatusBar(line);
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        auto* notice = line->findChild<SpokenNotice*>();
        QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(notice);
        QCOMPARE(spoken->role(), QAccessible::Notification);
        Showings showings;
        notice->installEventFilter(&showings);

        line->setSimpleText("Preparing to Save..."); // a text alone is not notified
        line->setSimpleText("Saved!");
        line->announceSimpleText();
        line->announceSimpleText(); // the same outcome twice is told twice
        QCOMPARE(showings.count, 2);
        QCOMPARE(spoken->text(QAccessible::Name), QString("Saved!"));
        QVERIFY(notice->isHidden() && notice->size().isEmpty() && !notice->focusPolicy());
        QCOMPARE(line->findChild<QLabel*>("SimpleText")->text(), QString("Saved!"));

        // A modal dialog has just closed and the focus is not back yet.
        QWidget other;
        other.show();
        other.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&other));
        line->setSimpleText("Save Cancled.");
        line->announceSimpleText();
        QTest::qWait(50);
        QCOMPARE(showings.count, 2);
        window.activateWindow();
        QTRY_COMPARE(showings.count, 3);
        QCOMPARE(spoken->text(QAccessible::Name), QString("Save Cancled."));

        // A window that stays inactive gets it after a second all the same.
        other.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&other));
        line->announceSimpleText();
        QTRY_COMPARE_WITH_TIMEOUT(showings.count, 4, 1500);
    }
};

QTEST_MAIN(StatusLineTest)
#include "status_line_qtest.moc"
