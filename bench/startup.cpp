// The two start-up programs, built from this file: bench_startup_umbrakit starts the program as
// main() does (the real main window, file operations, boxes and launcher) and
// bench_startup_bare (BARE_WINDOW) shows the bare window with the same widgets. Both run on a
// temporary program folder and end once their window is painted. With "--idle SECONDS" they
// then let the event loop run that long and print, as JSON, how often they woke up meanwhile.
#include <QApplication>
#include <QTemporaryDir>
#include <QTimer>
#include <cstdio>
#include <sys/resource.h>
#include <utility>

#ifdef BARE_WINDOW
#include "bare_window.h"
#else
#include "gui/main_window/main_window.h"
#include "platform/bundled_fonts.h"
#include "platform/disk_file_ops.h"
#include "platform/qt_dialogs.h"
#include "platform/system_launcher.h"
#endif

namespace {
// Ends the event loop at the window's first paint event. The end is queued, so the paint of
// the window and all its children runs to its end first; it is an exit, for quit() would also
// close the window.
struct FirstPaint : QObject {
    bool painted = false;
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint && !std::exchange(painted, true))
            QMetaObject::invokeMethod(
                qApp, [] { QCoreApplication::exit(0); }, Qt::QueuedConnection);
        return false;
    }
};

// Voluntary context switches, one for each sleep, of the main thread (RUSAGE_THREAD) or of all
// threads (RUSAGE_SELF). Involuntary ones are the machine's other processes taking the
// processor from a thread that is awake anyway.
long wakeups(int who) {
    rusage usage{};
    getrusage(who, &usage);
    return usage.ru_nvcsw;
}
} // namespace

int main(int argc, char* argv[]) {
    QApplication app(argc, argv);
    const QTemporaryDir appPath;
#ifdef BARE_WINDOW
    const auto window = umbrakit::bench::makeBareWindow();
    window->show();
#else
    umbrakit::installBundledFonts();
    umbrakit::DiskFileOps files;
    umbrakit::QtDialogs dialogs;
    umbrakit::SystemLauncher launcher;
    umbrakit::Services services{appPath.path(), files, dialogs, launcher,
                                [] { QCoreApplication::exit(0); }};
    const auto window = umbrakit::MainWindow::start(services);
#endif
    FirstPaint firstPaint;
    window->installEventFilter(&firstPaint);
    QTimer giveUp; // a window that never paints must not hang the benchmark
    giveUp.callOnTimeout(qApp, [] { QCoreApplication::exit(0); });
    giveUp.start(20000);
    QCoreApplication::exec();
    giveUp.stop();
    if (!firstPaint.painted) {
        std::fprintf(stderr, "the window was never painted\n");
        return 1;
    }
    const QStringList arguments = QCoreApplication::arguments();
    const qsizetype at = arguments.indexOf("--idle");
    if (at < 1 || at + 1 >= arguments.size())
        return 0;
    // The timer that ends the wait wakes the loop once; both programs pay it. All threads are
    // read outside the main thread's reads, so a switch between them counts in both or in all
    // threads alone.
    const double seconds = arguments[at + 1].toDouble();
    const long allBefore = wakeups(RUSAGE_SELF), mainBefore = wakeups(RUSAGE_THREAD);
    QTimer::singleShot(int(seconds * 1000), Qt::PreciseTimer, qApp,
                       [] { QCoreApplication::exit(0); });
    QCoreApplication::exec();
    const long main = wakeups(RUSAGE_THREAD) - mainBefore, all = wakeups(RUSAGE_SELF) - allBefore;
    std::printf("{\"idle_s\": %.1f, \"wakeups\": %ld, \"all_threads_wakeups\": %ld}\n", seconds,
                main, all);
    return 0;
}
