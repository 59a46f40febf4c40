// What the handler benchmark times: things a user does on the shown windows, each with the
// untimed steps that bring the windows to the state it starts from and a check that it did its
// work (a refused export is fast and proves nothing). The program runs on a temporary program
// folder with the real file operations, boxes and file dialogs answered from queues, and a
// launcher that starts nothing.
#pragma once

#include <QTemporaryDir>
#include <functional>
#include <string>

#include "gui/main_window/main_window.h"
#include "support/test_doubles.h"
#include "timed_file_ops.h"

namespace umbrakit::bench {

struct UserAction {
    std::string name;              // what the user did
    std::function<void()> prepare; // untimed, before every call
    std::function<void()> act;     // timed
    std::function<bool()> worked;  // after the calls
    bool repaints = false;         // timed once more with the repaint it causes
};

struct BenchApp {
    QTemporaryDir dir;
    TimedFileOps files;
    ScriptedDialogs dialogs;
    FakeLauncher launcher;
    Services services{dir.path(), files, dialogs, launcher, [] {}};
    std::unique_ptr<MainWindow> window = MainWindow::start(services);
};

std::vector<UserAction> mainWindowActions(BenchApp& app);
std::vector<UserAction> pathsDialogActions(BenchApp& app);
// The toolkit's own share of the grid's work: the bare window's plain check boxes.
std::vector<UserAction> yardsticks(QMainWindow& bareWindow);

} // namespace umbrakit::bench
