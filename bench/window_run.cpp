#include "window_run.h"

#include <QCoreApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>
#include <cstdio>
#include <sys/resource.h>

namespace umbrakit::bench {

namespace {
// Ends the event loop once the window has received its first paint event. The end is queued,
// so the paint itself, of the window and all its children, runs to its end first; it is an
// exit, for quit() would also close the window.
class FirstPaint : public QObject {
  public:
    explicit FirstPaint(QWidget& window) : window_(window) { window.installEventFilter(this); }
    bool painted = false;

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (watched == &window_ && event->type() == QEvent::Paint && !painted) {
            painted = true;
            window_.removeEventFilter(this);
            QMetaObject::invokeMethod(
                qApp, [] { QCoreApplication::exit(0); }, Qt::QueuedConnection);
        }
        return false;
    }

  private:
    QWidget& window_;
};

// Wake-ups of the main thread (RUSAGE_THREAD) or of all threads (RUSAGE_SELF): each sleep
// is one voluntary context switch. Involuntary ones are the machine's other processes taking
// the processor from a thread that is awake anyway.
long wakeups(int who) {
    rusage usage{};
    getrusage(who, &usage);
    return usage.ru_nvcsw;
}

// The timer that ends the wait wakes the loop once; the bare window's run pays it too.
void printIdleWakeups(int milliseconds) {
    // All threads are read outside the main thread's reads, so a switch between them counts
    // in both or in all threads alone.
    const long allBefore = wakeups(RUSAGE_SELF), mainBefore = wakeups(RUSAGE_THREAD);
    QTimer::singleShot(milliseconds, Qt::PreciseTimer, qApp, [] { QCoreApplication::exit(0); });
    QCoreApplication::exec();
    const long main = wakeups(RUSAGE_THREAD) - mainBefore, all = wakeups(RUSAGE_SELF) - allBefore;
    std::printf("{\"idle_s\": %.1f, \"wakeups\": %ld, \"all_threads_wakeups\": %ld}\n",
                milliseconds / 1000.0, main, all);
}
} // namespace

int runShownWindow(QWidget& window) {
    FirstPaint firstPaint(window);
    QTimer giveUp; // a window that never paints must not hang the benchmark
    QObject::connect(&giveUp, &QTimer::timeout, qApp, [] { QCoreApplication::exit(0); });
    giveUp.start(20000);
    QCoreApplication::exec();
    giveUp.stop();
    if (!firstPaint.painted) {
        std::fprintf(stderr, "the window was never painted\n");
        return 1;
    }
    const QStringList arguments = QCoreApplication::arguments();
    if (const qsizetype at = arguments.indexOf("--idle"); at > 0 && at + 1 < arguments.size())
        printIdleWakeups(int(arguments[at + 1].toDouble() * 1000));
    return 0;
}

} // namespace umbrakit::bench
