// The program as the handler benchmark drives it: the main window started on a temporary
// program folder with the real file operations (timed), boxes and file dialogs answered from
// queues, and a launcher that reports a start without starting anything.
#pragma once

#include <QTemporaryDir>
#include <memory>

#include "gui/main_window/main_window.h"
#include "platform/launcher.h"
#include "support/test_doubles.h"
#include "timed_file_ops.h"

namespace umbrakit::bench {

class StartedLauncher : public Launcher {
  public:
    LaunchResult startScript(const QString&) override { return {}; }
};

struct BenchApp {
    QTemporaryDir dir;
    TimedFileOps files;
    ScriptedDialogs dialogs;
    StartedLauncher launcher;
    Services services{dir.path(), files, dialogs, launcher, [] {}};
    std::unique_ptr<MainWindow> window = MainWindow::start(services);
};

} // namespace umbrakit::bench
