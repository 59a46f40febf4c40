// The program with its real windows and dialogs on the given folder; its launcher starts nothing.
#include <QApplication>

#include "gui/main_window/main_window.h"
#include "platform/disk_file_ops.h"
#include "platform/qt_dialogs.h"
#include "support/test_doubles.h"

int main(int argc, char* argv[]) {
    QApplication app(argc, argv);
    if (argc != 2)
        qFatal("usage: program_for_orca PROGRAM_FOLDER");
    umbrakit::DiskFileOps files;
    umbrakit::QtDialogs dialogs;
    umbrakit::FakeLauncher launcher;
    umbrakit::Services services{QString::fromLocal8Bit(argv[1]), files, dialogs, launcher,
                                [] { QCoreApplication::exit(0); }};
    const auto mainWindow = umbrakit::MainWindow::start(services);
    return app.exec();
}
