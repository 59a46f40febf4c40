#include "idle_wakeups.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QDir>
#include <QTimer>
#include <cstdio>
#include <fstream>
#include <string>

namespace umbrakit::bench {

namespace {
ContextSwitches switchesIn(const std::string& statusPath) {
    ContextSwitches switches;
    std::ifstream status(statusPath);
    std::string key;
    while (status >> key) {
        if (key == "voluntary_ctxt_switches:")
            status >> switches.voluntary;
        else if (key == "nonvoluntary_ctxt_switches:")
            status >> switches.involuntary;
    }
    return switches;
}

ContextSwitches operator-(ContextSwitches after, ContextSwitches before) {
    return {after.voluntary - before.voluntary, after.involuntary - before.involuntary};
}
} // namespace

ContextSwitches mainThreadSwitches() {
    return switchesIn("/proc/self/task/" + std::to_string(QCoreApplication::applicationPid()) +
                      "/status");
}

ContextSwitches allThreadsSwitches(int* threads) {
    ContextSwitches sum;
    const QStringList tasks = QDir("/proc/self/task").entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString& task : tasks) {
        const ContextSwitches one = switchesIn("/proc/self/task/" + task.toStdString() + "/status");
        sum.voluntary += one.voluntary;
        sum.involuntary += one.involuntary;
    }
    if (threads)
        *threads = int(tasks.size());
    return sum;
}

int runningTimers(QObject& root) {
    const QAbstractEventDispatcher* dispatcher = QAbstractEventDispatcher::instance();
    qsizetype timers = dispatcher->registeredTimers(&root).size();
    for (QObject* child : root.findChildren<QObject*>())
        timers += dispatcher->registeredTimers(child).size();
    return int(timers);
}

// The timer that ends the wait wakes the loop once; the bare window's run pays it too.
void printIdleWakeups(QObject& window, int milliseconds) {
    const int timers = runningTimers(window);
    int threads = 0;
    const ContextSwitches mainBefore = mainThreadSwitches();
    const ContextSwitches allBefore = allThreadsSwitches();
    QTimer::singleShot(milliseconds, Qt::PreciseTimer, qApp, &QCoreApplication::quit);
    QCoreApplication::exec();
    const ContextSwitches main = mainThreadSwitches() - mainBefore;
    const ContextSwitches all = allThreadsSwitches(&threads) - allBefore;
    std::printf("idle %.1f s: wake-ups %ld (voluntary %ld, involuntary %ld); all %d threads %ld; "
                "timers running in the window %d\n",
                milliseconds / 1000.0, main.total(), main.voluntary, main.involuntary, threads,
                all.total(), timers);
}

} // namespace umbrakit::bench
