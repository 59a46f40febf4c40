#include "window_run.h"

#include <QCoreApplication>
#include <QEvent>
#include <QStringList>
#include <QTimer>
#include <QWidget>
#include <cstdio>

#include "idle_wakeups.h"

namespace umbrakit::bench {

namespace {
// Ends the event loop once the window has received its first paint event. The end is queued,
// so the paint itself, of the window and all its children, runs to its end first.
class FirstPaint : public QObject {
  public:
    explicit FirstPaint(QWidget& window) : window_(window) { window.installEventFilter(this); }
    bool painted() const { return painted_; }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched == &window_ && event->type() == QEvent::Paint && !painted_) {
            painted_ = true;
            window_.removeEventFilter(this);
            QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
        }
        return false;
    }

  private:
    QWidget& window_;
    bool painted_ = false;
};

int idleMilliseconds(const QStringList& arguments) {
    const qsizetype at = arguments.indexOf("--idle");
    if (at < 0 || at + 1 >= arguments.size())
        return 0;
    return int(arguments[at + 1].toDouble() * 1000);
}
} // namespace

int runShownWindow(QWidget& window) {
    const int idleMs = idleMilliseconds(QCoreApplication::arguments());
    FirstPaint firstPaint(window);
    QTimer giveUp; // a window that never paints must not hang the benchmark
    giveUp.setSingleShot(true);
    QObject::connect(&giveUp, &QTimer::timeout, qApp, &QCoreApplication::quit);
    giveUp.start(20000);
    QCoreApplication::exec();
    giveUp.stop();
    if (!firstPaint.painted()) {
        std::fprintf(stderr, "the window was never painted\n");
        return 1;
    }
    if (idleMs > 0)
        printIdleWakeups(window, idleMs);
    return 0;
}

} // namespace umbrakit::bench
