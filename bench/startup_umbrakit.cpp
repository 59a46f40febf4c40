// The program's start-up as main() does it, on a temporary program folder: the real main
// window with the real file operations, boxes and launcher, shown and painted once. With
// "--idle SECONDS" it then counts its wake-ups.
#include <QApplication>
#include <QTemporaryDir>

#include "gui/main_window/main_window.h"
#include "platform/bundled_fonts.h"
#include "platform/disk_file_ops.h"
#include "platform/qt_dialogs.h"
#include "platform/system_launcher.h"
#include "window_run.h"

int main(int argc, char* argv[]) {
    QApplication app(argc, argv);
    umbrakit::installBundledFonts();
    const QTemporaryDir appPath;
    umbrakit::DiskFileOps files;
    umbrakit::QtDialogs dialogs;
    umbrakit::SystemLauncher launcher;
    umbrakit::Services services{appPath.path(), files, dialogs, launcher,
                                [] { QCoreApplication::exit(0); }};
    const auto form = umbrakit::MainWindow::start(services);
    return umbrakit::bench::runShownWindow(*form);
}
