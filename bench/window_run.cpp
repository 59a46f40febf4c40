#include "window_run.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QDir>
#include <QEvent>
#include <QTimer>
#include <QWidget>
#include <cstdio>
#include <fstream>

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

// Wake-ups of a thread: the context switches the kernel counts for it, voluntary or not.
long switchesOf(const QString& task) {
    std::ifstream status(QString("/proc/self/task/%1/status").arg(task).toStdString());
    long total = 0, count = 0;
    for (std::string key; status >> key;) {
        if (key.ends_with("ctxt_switches:") && status >> count)
            total += count;
    }
    return total;
}

struct Wakeups {
    long mainThread = 0, allThreads = 0;
    int threads = 0;
};

Wakeups wakeupsSoFar() {
    Wakeups now{switchesOf(QString::number(QCoreApplication::applicationPid())), 0, 0};
    for (const QString& task :
         QDir("/proc/self/task").entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        now.allThreads += switchesOf(task);
        ++now.threads;
    }
    return now;
}

// The timer that ends the wait wakes the loop once; the bare window's run pays it too.
void printIdleWakeups(QWidget& window, int milliseconds) {
    const QAbstractEventDispatcher* dispatcher = QAbstractEventDispatcher::instance();
    qsizetype timers = dispatcher->registeredTimers(&window).size();
    for (QObject* child : window.findChildren<QObject*>())
        timers += dispatcher->registeredTimers(child).size();
    const Wakeups before = wakeupsSoFar();
    QTimer::singleShot(milliseconds, Qt::PreciseTimer, qApp, &QCoreApplication::quit);
    QCoreApplication::exec();
    const Wakeups after = wakeupsSoFar();
    std::printf("{\"idle_s\": %.1f, \"wakeups\": %ld, \"all_threads_wakeups\": %ld, "
                "\"threads\": %d, \"timers_running\": %d}\n",
                milliseconds / 1000.0, after.mainThread - before.mainThread,
                after.allThreads - before.allThreads, after.threads, int(timers));
}
} // namespace

int runShownWindow(QWidget& window) {
    const QStringList arguments = QCoreApplication::arguments();
    const qsizetype idleAt = arguments.indexOf("--idle");
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
    if (idleAt > 0 && idleAt + 1 < arguments.size())
        printIdleWakeups(window, int(arguments[idleAt + 1].toDouble() * 1000));
    return 0;
}

} // namespace umbrakit::bench
