// The program as a test meets it: the main window started on a temporary program folder,
// real files, boxes and file dialogs answered from queues, a launcher that starts nothing.
#pragma once

#include <QByteArray>
#include <QTemporaryDir>
#include <memory>

#include "gui/main_window/main_window.h"
#include "support/scripted_dialogs.h"
#include "support/fake_launcher.h"
#include "support/faulty_file_ops.h"

namespace umbrakit {

struct TestApp {
    QTemporaryDir dir;
    FaultyFileOps files;
    ScriptedDialogs dialogs;
    FakeLauncher launcher;
    int endCalls = 0;
    Services services{dir.path(), files, dialogs, launcher, [this] { ++endCalls; }};
    std::unique_ptr<Form1> form = Form1::start(services);

    QString path(const QString& name) const { return dir.filePath(name); }
    QByteArray bytesOf(const QString& name) const;
    void write(const QString& name, const QByteArray& bytes) const;
    QString status() const;
};

} // namespace umbrakit
