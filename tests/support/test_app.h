// The main window on a temporary program folder with the test doubles; the mouse as a user
// moves it.
#pragma once

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <memory>

#include "gui/main_window/main_window.h"
#include "platform/status_bar.h"
#include "support/test_doubles.h"

namespace umbrakit {

struct TestApp {
    QTemporaryDir dir;
    QString folder = dir.path(); // the program's folder: a temporary one unless given
    FaultyFileOps files;
    ScriptedDialogs dialogs;
    FakeLauncher launcher;
    int endCalls = 0;
    Services services{folder, files, dialogs, launcher, [this] { ++endCalls; }};
    std::unique_ptr<MainWindow> window = MainWindow::start(services);

    TestApp() = default;
    explicit TestApp(const QString& programFolder) : folder(programFolder) {}
    QString path(const QString& name) const { return QDir(folder).filePath(name); }
    QByteArray bytesOf(const QString& name) const {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    void write(const QString& name, const QByteArray& bytes) const {
        QFile file(path(name));
        if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) ||
            file.write(bytes) != bytes.size())
            qFatal("cannot write %s", qPrintable(name));
    }
    QString status() const { return window->statusLine->SimpleText(); }

    // The texts and the darkness as the paths dialog's OK hands them over; passes as they are.
    void setPaths(const std::u32string& game, const std::u32string& level,
                  const std::u32string& mod, double darkness = 1.5) {
        window->applyConfiguration({game, level, mod, darkness, window->configuration().passes});
    }
};

// Opens the list and clicks the row: one Click, as a user's choice.
inline void chooseRow(QComboBox* combo, int row) {
    combo->showPopup();
    QAbstractItemView* view = combo->view();
    const QRect rect = view->visualRect(view->model()->index(row, 0));
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {},
                      QPoint(rect.left() + 4, rect.center().y()));
}

// Clicks the box itself rather than the middle of its caption.
inline void clickBox(QCheckBox* box) {
    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(6, box->height() / 2));
}

} // namespace umbrakit
