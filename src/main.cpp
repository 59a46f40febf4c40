#include <QApplication>
#include <QTimer>

#include "command_line.h"
#include "gui/main_window/main_window.h"
#include "gui/main_window/program_folder_notice.h"
#include "platform/bundled_fonts.h"
#include "platform/disk_file_ops.h"
#include "platform/qt_dialogs.h"
#include "platform/system_launcher.h"

int main(int argc, char* argv[]) {
    if (const std::optional<int> exitCode = umbrakit::runCommandLine(argc, argv))
        return *exitCode;
    QApplication app(argc, argv);
    umbrakit::installBundledFonts();
    umbrakit::DiskFileOps files;
    umbrakit::QtDialogs dialogs;
    umbrakit::SystemLauncher launcher;
    umbrakit::Services services{QCoreApplication::applicationDirPath(), files, dialogs, launcher,
                                [] {
                                    for (QWidget* window : QApplication::topLevelWidgets())
                                        window->hide();
                                    QCoreApplication::exit(0);
                                }};
    const auto mainWindow = umbrakit::MainWindow::start(services);
    // Inside the event loop, so that closing the main window behind the notice still ends it.
    QTimer::singleShot(0, [&services] { umbrakit::tellIfProgramFolderIsReadOnly(services); });
    return app.exec();
}
