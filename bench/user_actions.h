// What the handler benchmark times: things a user does on the shown windows, each with the
// untimed steps that bring the windows to the state it starts from and a check that it did its
// work (a refused export is fast and proves nothing). The program runs on a temporary program
// folder with the real file operations, boxes and file dialogs answered from queues, and a
// launcher that starts nothing.
#pragma once

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <functional>
#include <string>

#include "gui/main_window/main_window.h"
#include "platform/disk_file_ops.h"
#include "support/test_doubles.h"

namespace umbrakit::bench {

struct UserAction {
    std::string name;              // what the user did
    std::function<void()> prepare; // untimed, before every call
    std::function<void()> act;     // timed
    std::function<bool()> worked;  // after the calls
    bool repaints = false;         // timed once more with the repaint it causes
};

// The real file operations with the time spent in them counted: how much of a call is the wait
// for the disk (the flush of a file above all) rather than the program's own work.
class TimedFileOps : public FileOps {
    DiskFileOps disk_;
    template <typename Operation> auto timed(Operation operation) {
        QElapsedTimer clock;
        clock.start();
        auto result = operation();
        spentUs += double(clock.nsecsElapsed()) / 1000;
        return result;
    }

  public:
    double spentUs = 0;
    bool exists(const QString& path) override {
        return timed([&] { return disk_.exists(path); });
    }
    FileResult read(const QString& path, QByteArray& bytes) override {
        return timed([&] { return disk_.read(path, bytes); });
    }
    FileResult remove(const QString& path) override {
        return timed([&] { return disk_.remove(path); });
    }
    FileResult writeNew(const QString& path, const QByteArray& bytes) override {
        return timed([&] { return disk_.writeNew(path, bytes); });
    }
    FileResult renameOver(const QString& from, const QString& to) override {
        return timed([&] { return disk_.renameOver(from, to); });
    }
};

struct BenchApp {
    QTemporaryDir dir;
    TimedFileOps files;
    ScriptedDialogs dialogs;
    FakeLauncher launcher;
    Services services{dir.path(), files, dialogs, launcher, [] {}};
    std::unique_ptr<MainWindow> window = MainWindow::start(services);
};

// On the main window, in the paths dialog, and the yardsticks: the toolkit's own share of the
// grid's work, on the bare window's plain check boxes.
std::vector<UserAction> userActions(BenchApp& app, QMainWindow& bareWindow);

} // namespace umbrakit::bench
