// What the windows need of the system, handed to them by main() or by a test.
#pragma once

#include <QString>
#include <functional>

#include "core/ansi_text.h"
#include "platform/dialogs.h"
#include "platform/file_ops.h"
#include "platform/launcher.h"

namespace umbrakit {

struct Services {
    QString appPath; // the folder of the running program
    FileOps& files;
    Dialogs& dialogs;
    Launcher& launcher;
    std::function<void()> end;            // ends the program at once
    CodePage codePage = systemCodePage(); // of go.bat and config.ini

    // A file of the program's own folder, such as "go.bat".
    QString appFile(const QString& name) const { return appPath + '/' + name; }
};

} // namespace umbrakit
